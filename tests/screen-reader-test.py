"""Drives the real window, beside a virtual device, over the accessibility bus, as a screen reader does.

screen-reader-test.py PROGRAM [TRANSLATION DIRECTORY]: the program is uav-vesper-virtual. With a translation, its words
are expected; the directory has it as the program loads it.
"""
import os
import re
import subprocess
import sys
import tempfile
import time
import xml.etree.ElementTree

# What the screens show, in reading order: role, name, value, description, states. Words in braces are translated.
NOT_CONNECTED = """
label Wi-Fi|label {DIG}|label FPV
button {Battery} 0% [{Not available}]|button {Mask} [{Not available}]|button {Fabric settings} [{Not available}]
button {Settings} [{Not available}]|button {Information} [{closed}] focusable|button {Connect} focusable
box {Sound} [{Not available}]|box {Vibro} [{Not available}]|box Wi-Fi [{Not available}]|box {Dig} [{Not available}]
button {Sens: }??? [{Not available}]|button {AI: }{None} [{Not available}]"""
BANDS = "".join(f"\nchart {{Bars}} {band} [...] focusable" for band in ("1.2", "2.4", "4.9", "5.8"))
MENU = """
label Wi-Fi|label {DIG}|label FPV
button {Battery} 87% focusable|button {Mask} [{on}] checked focusable|button {Fabric settings} focusable
button {Settings} [{closed}] focusable|button {Information} [{closed}] focusable|button {Disconnect} focusable
box 1.2 [{standard range}] checked focusable|box 2.4+ [{wide range}] checked focusable
box 4.9+ [{wide range}] checked focusable|box 5.8+ [{wide range}] checked focusable
box {Sound} checked focusable|box {Vibro} focusable|box Wi-Fi focusable|box {Dig} checked focusable
button {Sens: }{High} focusable|button {AI: }{Default} focusable"""
DRAWER = """
dialog {Settings}|heading {Detection}|button {Scan mode} [{Radioscan frequence}] focusable
button {AI mode} [{AI mode configure}] focusable
heading {Alarm}|box {Voice alarm} [{Speak detection results}] checked focusable
button {Alarm level} [{Speech alert with signal level specified and higher}] focusable
slider {Sound volume} 100 of 100 [{Alarm sound volume}] focusable
slider {Headphones volume} 25 of 100 [{3.5 mm headphones volume}] focusable
button {Headphones output} [{3.5 mm headphones output mode}] focusable
box {Sound} [{Sound alarm}] checked focusable|box {Vibro} [{Vibro alarm}] focusable|heading {Interface}
slider {Brightness} 50 of 100 [{Indication brightness}] focusable
slider {Display timeout} 30 of 360 [{Shut off the display for inactivity in seconds}] focusable"""
DIALOG = """
dialog {Scan mode}|button {Efficient} focusable|button {Standard} checked focusable|button {Automatic} focusable
button {Continuous} focusable"""
ROLES = [("PUSH_BUTTON", "button"), ("PUSH_BUTTON_MENU", "button"), ("CHECK_BOX", "box")] # newer Qts tell of a menu
ROLES += [(role.upper(), role) for role in ("label", "chart", "heading", "slider", "dialog", "frame", "notification")]
started = []


def start(*command, **options):
    started.append(subprocess.Popen(command, stderr=options.pop("stderr", subprocess.DEVNULL), **options))
    return started[-1]


def start_desktop(directory):
    """An X server without a screen, and a bus that starts the accessibility bus, which is found through the server."""
    reading, writing = os.pipe()
    start("Xvfb", "-noreset", "-displayfd", str(writing), "-screen", "0", "1000x1100x24", pass_fds=[writing])
    os.close(writing)
    os.environ.update(DISPLAY=":" + os.read(reading, 16).decode().strip(), XDG_RUNTIME_DIR=directory,
                      XDG_CACHE_HOME=directory, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb",
                      QT_QUICK_BACKEND="software", LC_ALL="C.UTF-8")
    bus = start("dbus-daemon", "--session", "--nofork", "--print-address", stdout=subprocess.PIPE, text=True)
    os.environ["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()


def wait_for(condition, what):
    """A minute at most. What has changed while it was read is read again."""
    end = time.monotonic() + 60
    while time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            if result := condition():
                return result
        except GLib.Error:
            pass
        time.sleep(0.02)
    raise TimeoutError(what() if callable(what) else what)


def children(node):
    return [child for i in range(node.get_child_count()) if (child := node.get_child_at_index(i))]


class Reader:
    def __init__(self, program, words):
        self.words = words
        self.signal = self.say(r"{Strongest: }\d+ {MHz}, -\d+ {dB}, (Wi-Fi|{DIG}|FPV)")
        self.announced = []
        self.listener = Atspi.EventListener.new(self.hear)
        self.listener.register("object:state-changed:showing")
        self.app = wait_for(lambda: next((app for app in children(Atspi.get_desktop(0))
                                          if app.get_process_id() == program.pid), None), "the program on the bus")

    def hear(self, event):
        try:
            if event.detail1 and event.source.get_role() == Atspi.Role.NOTIFICATION:
                self.announced.append(event.source.get_name())
        except GLib.Error:
            pass # what appeared has gone

    def say(self, text):
        return re.sub(r"\{(.*?)\}", lambda word: self.words[word[1]] if self.words else word[1], text)

    def nodes(self, node=None):
        if not node:
            self.app.clear_cache()
            node = self.app
        for child in children(node):
            if child.get_state_set().contains(Atspi.StateType.SHOWING):
                if child.get_role() != Atspi.Role.FILLER: # newer Qts have one for a list; readers pass over it
                    yield child
                yield from self.nodes(child)

    def line(self, node):
        role, states, description = node.get_role(), node.get_state_set(), node.get_description()
        line = [next((word for name, word in ROLES if getattr(Atspi.Role, name) == role), str(role)), node.get_name()]
        if role == Atspi.Role.SLIDER:
            line.append(f"{node.get_current_value():.0f} of {node.get_maximum_value():.0f}")
        if description:
            line.append("[...]" if re.fullmatch(self.signal, description) else f"[{description}]")
        if states.contains(Atspi.StateType.CHECKED):
            line.append("checked")
        if states.contains(Atspi.StateType.FOCUSABLE) and role != Atspi.Role.LABEL: # newer Qts say so of each label
            line.append("focusable")
        return " ".join(line)

    def screen(self):
        return [line for line in map(self.line, self.nodes()) if not line.startswith(("frame ", "notification "))]

    def expect_screen(self, text):
        wanted = re.split(r"[|\n]", self.say(text.strip()))
        wait_for(lambda: self.screen() == wanted, lambda: f"\nfound:  {self.screen()}\nwanted: {wanted}")

    def control(self, name):
        return wait_for(lambda: next((n for n in self.nodes() if n.get_name() == self.say(name)), None), name)

    def act(self, name, action):
        control = self.control(name)
        actions = [control.get_action_name(i) for i in range(control.get_n_actions())]
        assert control.do_action(actions.index(action)), name

    def press(self, name):
        self.act(name, "Press")

    def press_and_hear(self, name, wanted):
        """Presses again if the device has answered too late to be connected, as it may on a busy machine."""
        words = [self.say(wanted), self.say("{Not connected}")]
        heard = None
        while heard != words[0]:
            count = len(self.announced)
            self.press(name)
            heard = wait_for(lambda: next((word for word in self.announced[count:] if word in words), None), wanted)

    def drive(self):
        self.expect_screen(NOT_CONNECTED)
        self.press_and_hear("{Connect}", "{Connected}")
        self.press_and_hear("{Mask}", "{Mask on}")
        self.expect_screen(BANDS + MENU)
        place = self.control("{Bars} 2.4").get_extents(Atspi.CoordType.WINDOW)
        assert (place.x, place.width) == (0, 800), "one view is in the window, not all three"
        self.act("{Bars} 2.4", "Next Page")
        self.control("{Course} 2.4")
        self.press("{Settings}")
        menu = MENU.replace("{Settings} [{closed}]", "{Settings} [{open}] checked")
        self.expect_screen(DRAWER + menu)
        self.press("{Scan mode}")
        self.expect_screen(DRAWER + menu + DIALOG)
        self.press("{Automatic}")
        self.act("{Voice alarm}", "Toggle")
        self.act("{Sound volume}", "Decrease")
        self.act("{Headphones volume}", "Increase")
        self.control("{Display timeout}").set_current_value(44)
        drawer = DRAWER.replace("{Speak detection results}] checked", "{Speak detection results}]")
        for before, now in (("Sound volume} 100", "Sound volume} 99"), ("volume} 25", "volume} 26"),
                            ("timeout} 30", "timeout} 45")):
            drawer = drawer.replace(before, now)
        self.expect_screen(drawer + menu)
        # A new connection brings what the device has, not what the screens have shown.
        self.press_and_hear("{Disconnect}", "{Not connected}")
        self.press_and_hear("{Connect}", "{Connected}")
        self.press("{Settings}")
        self.press("{Scan mode}")
        chosen = DIALOG.replace("{Standard} checked", "{Standard}").replace("{Automatic}", "{Automatic} checked")
        self.expect_screen(drawer + menu + chosen)
        self.press("{Efficient}")
        self.press("{Information}")
        help_lines = {self.say("dialog {Information}"), self.say("label {Frequency bands: }"), "label 1000-1680"}
        wait_for(lambda: help_lines <= set(map(self.line, self.nodes())), "the other drawer")
        assert not [self.line(node) for node in self.nodes() if not node.get_name()]


def main(directory, program, translation=None, program_directory=None):
    messages = xml.etree.ElementTree.parse(translation).iter("message") if translation else ()
    words = {message.findtext("source"): message.findtext("translation") for message in messages}
    with open(directory + "/errors", "w+", encoding="utf-8") as errors:
        running = start(program, "--pace", "100", "--scene", "peaks", cwd=program_directory or directory,
                        stdout=subprocess.DEVNULL, stderr=errors)
        Reader(running, words).drive()
        running.terminate()
        assert running.wait(60) == 0
        errors.seek(0)
        assert ".qml" not in (text := errors.read()), text


with tempfile.TemporaryDirectory() as own:
    try:
        start_desktop(own)
        import gi # seeks the bus
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib
        main(own, *sys.argv[1:])
    finally:
        for process in reversed(started):
            process.kill()
            process.wait()
