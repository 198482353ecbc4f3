#pragma once

#include "linux-connector.h"
#include "pty-device.h"
#include "screen-driver.h"
#include "screen-engine.h"
#include "service-objects.h"

#include <QPointer>
#include <memory>
#include <optional>

/// The application's window with a person at it, and devices to plug in, on a serial directory of its own:
/// what else is plugged into this computer is left alone. UI thread, after registerTypes() and beside the
/// application object.
class Screens {
public:
    /// Shows the window, in the language of a working directory. Throws std::runtime_error if it does not
    /// show.
    explicit Screens(const QString &workingDirectory = ".");

    /// Plugs in a device in place of the one before. It scans only when it is told what.
    PtyDevice &plugIn(ProtoEnum generation);
    /// Presses the USB button until the screens have the device's settings: on a busy machine the device may
    /// answer too late for an attempt. Throws std::runtime_error if it never answers.
    void connectTo(ProtoEnum generation) {
        plugIn(generation);
        connect();
    }
    void connect();
    void disconnect() { click("usb"); }
    bool isConnected() const { return objects.usbService.isUsbActive(); }

    /// How many messages of a type the screens have taken since the start: CONFIG, CONFIG_K7, AI_PRIOR, STATE
    /// or SCAN_RESULT.
    const int &taken(MsgTypeEnum type) { return counts[type]; }

    /// Clicks the visible control with this word or picture on it. Throws std::runtime_error if there is
    /// none.
    void click(const QString &word);
    /// Takes an entry of the open dialog by its word, or leaves the dialog by a click on something else.
    void choose(const QString &word);

    SerialDirectory directory; ///< more devices may be plugged in here

private:
    std::unique_ptr<LinuxConnector> ownedConnector = std::make_unique<LinuxConnector>(directory.path());

public:
    std::optional<PtyDevice> device;
    LinuxConnector &connector = *ownedConnector; ///< of the screens, until they end
    ServiceObjects objects{std::move(ownedConnector)};
    std::unique_ptr<ScreenEngine> engine = std::make_unique<ScreenEngine>(objects);
    QPointer<QQuickWindow> window;
    std::optional<ScreenDriver> driver;

private:
    std::map<MsgTypeEnum, int> counts;
    int stateChanges = 0;
};
