#pragma once

#include "linux-connector.h"
#include "pty-device.h"
#include "screen-driver.h"
#include "screen-engine.h"
#include "service-objects.h"

#include <QPointer>
#include <memory>
#include <optional>

/// The application's window with a person at it, and devices to plug in. They are in a serial directory of
/// its own, so real devices of this computer are not touched. UI thread, after registerTypes(), while there
/// is an application object.
class Screens {
public:
    /// Shows the window, with the translation that is in the working directory. Throws std::runtime_error if
    /// it does not show.
    explicit Screens(const QString &workingDirectory = ".");

    /// Plugs in a device in place of the one before. It has no scene and makes no scans by itself.
    PtyDevice &plugIn(ProtoEnum generation);
    /// Presses the USB button until the screens have the device's settings. More than one press may be
    /// needed, because on a busy machine the device may answer too late. Throws std::runtime_error if it
    /// never answers.
    void connectTo(ProtoEnum generation) {
        plugIn(generation);
        connect();
    }
    void connect();
    void disconnect() { click("usb"); }
    bool isConnected() const { return objects.usbService.isUsbActive(); }

    /// The number of messages of a type that the screens have accepted since the start: CONFIG, CONFIG_K7,
    /// AI_PRIOR, STATE or SCAN_RESULT.
    const int &taken(MsgTypeEnum type) { return counts[type]; }

    /// Clicks the visible control with this word or picture on it, several times if asked. Throws
    /// std::runtime_error if there is none.
    void click(const QString &word, int times = 1);
    /// Clicks an entry of the open dialog, or closes the dialog by a click on another word.
    void choose(const QString &word);

    SerialDirectory directory; ///< more devices may be plugged in here

private:
    std::unique_ptr<LinuxConnector> ownedConnector = std::make_unique<LinuxConnector>(directory.path());

public:
    std::optional<PtyDevice> device;
    LinuxConnector &connector = *ownedConnector; ///< the screens own it
    ServiceObjects objects{std::move(ownedConnector)};
    std::unique_ptr<ScreenEngine> engine = std::make_unique<ScreenEngine>(objects);
    QPointer<QQuickWindow> window;
    std::optional<ScreenDriver> driver;

private:
    std::map<MsgTypeEnum, int> counts;
    int stateChanges = 0;
};
