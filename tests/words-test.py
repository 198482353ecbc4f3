"""words-test.py TREE: every word of the screens is translated, and the manual of each language explains it."""
import pathlib
import re
import sys
import xml.etree.ElementTree

tree = pathlib.Path(sys.argv[1])
missing = []


def expect(holds, what):
    if not holds:
        missing.append(what)


def is_in(manual, phrase):
    return phrase.replace("%1", "15").strip() in manual


english, russian = ((tree / f"manuals/source/manual.{language}.md").read_text("utf-8") for language in ("en", "ru"))
translated = {(context.findtext("name"), message.findtext("source")): message.findtext("translation")
              for context in xml.etree.ElementTree.parse(tree / "translations/UavVesper-ru.ts").iter("context")
              for message in context.iter("message") if message.find("translation").get("type") is None}
words = [(document.stem, call[2]) for document in (tree / "qml").rglob("*.qml")
         for call in re.finditer(r"""qsTr\((["'])(.*?)(?<!\\)\1\)""", document.read_text("utf-8"))]
expect(len(words) > 50, f"words of the screens: there are {len(words)}")
for document, word in words:
    translation = translated.get((document, word))
    expect(translation, f"the translation of '{word}' in {document}")
    if translation and word not in ("language", "Share"): # no word to see, and a word of the mobile platform alone
        expect(is_in(english, word), f"'{word}' in the English manual")
        expect(is_in(russian, translation), f"'{translation}' in the Russian manual")
for manual in (tree / "manuals").glob("*.pdf"):
    pdf = manual.read_bytes()
    for part in (b"%PDF-", b"/Title ", b"/Lang (en)", b"(en, ru)", b"/Dest (en)", b"/Dest (ru)"):
        expect(part in pdf, f"{part} in {manual.name}")
sys.exit("Missing:\n" + "\n".join(missing) if missing else 0)
