// Goes through the screens with the simulator, then with a virtual detector. Writes a picture of each state.

#include "field-scene.h"
#include "screens.h"
#include "visuals/uav-three-switch.h"

#include <QAccessible>
#include <QDir>
#include <QDirIterator>
#include <QGuiApplication>
#include <QTest>
#include <cstdio>

namespace {

/// A message for the user, if a step of the tour is not possible.
std::runtime_error failure(const QString &text) {
    return std::runtime_error(text.toStdString());
}

class Tour : Screens {
public:
    explicit Tour(const QDir &folder)
        : pictures(folder) {}

    void run() {
        shoot("not-connected");
        startSimulator();
        waitForScans(History::DEFAULT_HISTORY_LEN);
        shoot("bars");
        visitHelp();
        visitSettings();
        visitByKeyboard();
        swipeAllBands();
        shoot("course-of-the-strongest-signal");
        swipeAllBands();
        shoot("persistence");
        switchBands();
        shootAt({300, 400}, "small-window");
        shootAt({2560, 1440}, "large-window");
        press("usb");
        shoot("disconnected");
        visitDevice(ProtoEnum::K6, "k6-");
        visitDevice(ProtoEnum::K7, "k7-");
    }

private:
    /// Twelve clicks on the help button while not connected.
    void startSimulator() {
        press("info");
        shoot("help-not-connected");
        for (int i = 1; i < 12; ++i)
            press("info");
        waitFor([this] { return objects.usbService.isUsbActive(); }, "The simulator does not start.");
    }

    void press(const QString &wordOrPicture) { driver->click(element({}, shown(wordOrPicture))); }

    /// The view that each band shows.
    QVector<QQuickItem *> views() const { return driver->findAll("LayeredPlot"); }

    /// One swipe to the left on each band.
    void swipeAllBands() {
        for (const QQuickItem *view : views()) {
            const QPoint middle = ScreenDriver::middleOf(*view);
            driver->drag(middle + QPoint(100, 0), middle - QPoint(100, 0));
            waitFor([&] { return !view->isVisible(); }, "A band does not follow the swipe.");
        }
    }

    /// Switches each band off, to its standard range and to its wide range. The last active band can't be
    /// off.
    void switchBands() {
        const QStringList firstBands{"1.2", "2.4", "4.9"};
        const QStringList lastBand{"5.8"};
        step(firstBands, UavThreeSwitch::OFF);
        shoot("first-bands-off");
        step(firstBands, UavThreeSwitch::FIRST);
        step(lastBand, UavThreeSwitch::OFF);
        shoot("last-band-off");
        step(lastBand, UavThreeSwitch::FIRST);
        shoot("bands-standard");
        step(firstBands + lastBand, UavThreeSwitch::SECOND);
        shoot("bands-extended");
    }

    /// Clicks the switches of these bands until they have this position.
    void step(const QStringList &bands, UavThreeSwitch::Position position) {
        for (const QString &band : bands)
            while (element("UavThreeSwitch", band + '*').property("position").toInt() != position)
                driver->click(element("UavThreeSwitch", band + '*'));
    }

    void visitHelp() {
        press("info");
        shoot("help");
        shootAt({300, 400}, "help-small-window");
        visitDialog("Manual");
        press("info");
    }

    void visitSettings() {
        press("cfg");
        shoot("settings");
        shootAt({300, 400}, "settings-small-window");
        for (const char *row : {"Scan mode", "AI mode", "Alarm level"})
            visitDialog(row);
        scrollSettings();
        shoot("settings-scrolled");
        visitDialog("Headphones output");
        press("cfg");
    }

    /// The ring around the control that has the focus: a band, and a slider of the settings.
    void visitByKeyboard() {
        tabTo(QAccessible::Chart);
        shoot("keyboard-band");
        press("cfg");
        tabTo(QAccessible::Slider);
        shoot("keyboard-slider");
        press("cfg");
    }

    bool hasFocus(QAccessible::Role role) const {
        const auto *focused = QAccessible::queryAccessibleInterface(window->activeFocusItem());
        return focused && focused->role() == role;
    }

    void tabTo(QAccessible::Role role) {
        for (int steps = 0; !hasFocus(role); ++steps) {
            if (steps == 100)
                throw failure("The keyboard does not reach every control.");
            QTest::keyClick(window, Qt::Key_Tab);
        }
    }

    void scrollSettings() {
        if (!driver->scrollDown(element("DrawerFrame")))
            throw failure("The settings do not scroll.");
    }

    /// The dialog that a control opens. A click outside closes it.
    void visitDialog(const QString &word) {
        press(word);
        shoot("dialog-" + word.toLower().replace(' ', '-'));
        driver->clickAt({1, 1});
    }

    /// A detector in the field. These pictures are in its manual.
    void visitDevice(ProtoEnum generation, const QString &name) {
        constexpr int scanPeriodMs = 500;
        connectTo(generation);
        driver->click(element("UavSwitch", "Wi-Fi"));
        for (const auto &results : fieldScene(generation)) {
            device->sendScan(results);
            waitForScans(1);
            QTest::qWait(scanPeriodMs);
        }
        shoot(name + "bars");
        shoot(name + "commands", &element("ButtonLayout"));
        shoot(name + "settings-row", &element("SettingsLayout"));
        press("cfg");
        shoot(name + "settings", &element("MainPage"));
        press("Scan mode");
        shoot(name + "list", &element("MainPage"));
        driver->clickAt({1, 1});
        if (generation >= ProtoEnum::K7) {
            scrollSettings();
            shoot(name + "settings-scrolled", &element("MainPage"));
        }
        press("info");
        shoot(name + "information", &element("MainPage"));
        press("info");
        shoot(name + "bars-5800", views().last());
        swipeAllBands();
        shoot(name + "course-5800", views().last());
        swipeAllBands();
        shoot(name + "persistence-5800", views().last());
        press("usb");
    }

    void waitForScans(int count) {
        const int wanted = taken(MsgTypeEnum::SCAN_RESULT) + count;
        waitFor([&] { return taken(MsgTypeEnum::SCAN_RESULT) >= wanted; }, "No scans come.");
    }

    void waitFor(const std::function<bool()> &condition, const QString &otherwise) {
        if (!ScreenDriver::waitFor(condition))
            throw failure(otherwise);
    }

    const QQuickItem &element(const QString &name, const QString &wordOrPicture = {}) const {
        const QQuickItem *found = driver->find(name, wordOrPicture);
        if (!found)
            throw failure("Not on the screen: " + name + ' ' + wordOrPicture);
        return *found;
    }

    /// The translation of a word of the documents into the language of this tour.
    static QString shown(const QString &word) {
        for (QDirIterator it(":/qml", {"*.qml"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
            it.next();
            const QByteArray document = it.fileInfo().baseName().toUtf8();
            QString translated = QCoreApplication::translate(document, word.toUtf8());
            if (translated != word)
                return translated;
        }
        return word;
    }

    void shootAt(const QSize &size, const QString &state) {
        const QSize usual = window->size();
        driver->resize(size);
        waitForScans(2);
        shoot(state);
        driver->resize(usual);
    }

    /// The whole window, or a part of it.
    void shoot(const QString &state, const QQuickItem *part = nullptr) {
        const QString file =
            pictures.filePath(QString("%1-%2.png").arg(++shots, 2, 10, QChar('0')).arg(state));
        const QImage picture = driver->picture();
        const double scale = picture.width() / static_cast<double>(window->width());
        const QRectF place = part ? part->mapRectToScene(part->boundingRect()) : QRectF();
        const QRect area =
            part ? QRectF(place.topLeft() * scale, place.size() * scale).toRect() : picture.rect();
        if (!picture.copy(area).save(file))
            throw failure("Can't write " + file);
        std::printf("%s\n", qPrintable(file));
    }

    QDir pictures;
    int shots = 0;
};

int fail(const QString &text) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
    return 1;
}

} // namespace

int main(int argc, char **argv) {
    // Without a display and without a graphics card, unless the user names another platform.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    followDesktop(argc, argv);
    registerTypes();
    QGuiApplication app(argc, argv);
    if (argc != 2)
        return fail("Usage: uav-vesper-tour DIR");
    const QDir directory(QString::fromLocal8Bit(argv[1]));
    if (!directory.mkpath("."))
        return fail("Can't make the folder " + directory.path());

    try {
        Tour(directory).run();
    } catch (const std::exception &error) {
        return fail(error.what());
    }
    return 0;
}
