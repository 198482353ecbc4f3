#pragma once

#include "serial-interface-connector.h"
#include "simulator/test-service.h"
#include "usb-tty.h"

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>

inline namespace kelvane {

/// Finds the device among the serial terminals of the system, and stands for the simulator in test mode. It
/// is itself the link to the device.
class LinuxConnector : public SerialInterfaceConnector, public UsbTty {
public:
    static constexpr const char *SERIAL_DIRECTORY = "/dev/serial/by-id";

    using Report = std::function<void(const char *)>;

    /// `serialDirectory` holds a symbolic link to the terminal of each serial device. On the searching thread
    /// `reportError` gets the text of a file system error that ended a search. `reportPort` gets a line with
    /// the path of a terminal, what failed and what helps: on the searching thread for each one that was
    /// tried and did not become the device, and on the thread of a transaction for each request that the line
    /// did not take in time.
    explicit LinuxConnector(
        std::filesystem::path serialDirectory = SERIAL_DIRECTORY, Report reportError = [](const char *) {},
        Report reportPort = [](const char *) {});
    ~LinuxConnector() override;

    /// Opens one device after the other and asks for its state. The first whose reply within 100 ms is a
    /// STATE is taken; one that talks of something else meanwhile is passed over. On purpose: a link that
    /// leads nowhere ends the search, like any other error of the file system.
    bool connectInterface() override;
    /// Does not interrupt a transaction on another thread, which ends in its time-out.
    void disconnect() override;
    /// Neither of these two touches the simulator's scan, which SCAN starts and stops.
    void startTesting() override;
    void stopTesting() override;
    bool isTesting() override { return test; }
    void addListener(std::shared_ptr<MsgListener> listener) override;
    void removeListener(std::shared_ptr<MsgListener> listener) override;
    /// On purpose: a message of any type counts as the reply, since the line carries nothing that ties a
    /// reply to its request, and so a scan that comes first ends the wait. Of several that come before the
    /// caller is awake the last one is returned. The simulator answers at once, whatever the time-out; null
    /// where it tells its listeners alone.
    std::shared_ptr<Msg> simpleTransaction(std::shared_ptr<Msg> msg,
                                           std::chrono::milliseconds timeout) override;

protected:
    void transactionGaveUp(const std::shared_ptr<Msg> &request, Sent sent,
                           std::chrono::milliseconds timeout) override;

private:
    bool probe(const std::string &devicePath);

    const std::filesystem::path directory;
    const Report report;
    const Report reportPort;
    std::atomic<bool> test{false};
    std::atomic<unsigned> givenUp{0}; ///< transactions
    /// The order to stop scanning, where the line has taken nothing of it. It becomes the last request, or
    /// the device would scan on after the end. Only atomic access.
    std::shared_ptr<Msg> unsentStop;
    TestService testService;
    /// Makes what the simulator fires reach the listeners of the link.
    const std::shared_ptr<MsgListener> testListener;
};

} // namespace kelvane
