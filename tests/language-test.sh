#!/usr/bin/env bash
# The language that a user's environment asks for: rows of LC_ALL, LC_MESSAGES, LANG, LANGUAGE ("-" is unset) and
# the language. The first argument is the script under test.
set -u
failed=0
exec 2>/dev/null # bash warns of locales that this system lacks
while read -r all messages lang language wanted; do
    got=$(
        unset LC_ALL LC_MESSAGES LANG LANGUAGE
        [ "$all" = - ] || LC_ALL=$all
        [ "$messages" = - ] || LC_MESSAGES=$messages
        [ "$lang" = - ] || LANG=$lang
        [ "$language" = - ] || LANGUAGE=$language
        . "$1"
        user_language
    )
    [ "$got" = "$wanted" ] && continue
    echo "LC_ALL=$all LC_MESSAGES=$messages LANG=$lang LANGUAGE=$language: got '$got', wanted '$wanted'"
    failed=1
done <<'ROWS'
-           -           -           -     en
-           -           ru_RU.UTF-8 -     ru
-           -           ru          -     ru
-           -           rut_XX      -     en
-           en_US.UTF-8 ru_RU.UTF-8 -     en
-           ru_UA       de_DE.UTF-8 -     ru
C           ru_RU       ru_RU       ru    en
C.UTF-8     -           ru_RU       -     en
ru_RU.UTF-8 C           C           -     ru
-           -           en_US.UTF-8 ru    ru
-           -           ru_RU.UTF-8 en:ru en
-           -           de_DE.UTF-8 uk:ru ru
-           -           ru_RU.UTF-8 de    ru
ROWS
exit $failed
