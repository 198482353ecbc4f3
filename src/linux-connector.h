#pragma once

#include "serial-interface-connector.h"
#include "simulator/test-service.h"
#include "usb-tty.h"

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>

inline namespace kelvane {

/// Finds the device among the serial terminals of the system. It is itself the link to the device. In test
/// mode it passes requests to the simulator instead.
class LinuxConnector : public SerialInterfaceConnector, public UsbTty {
public:
    static constexpr const char *SERIAL_DIRECTORY = "/dev/serial/by-id";

    using Report = std::function<void(const char *)>;

    /// `serialDirectory` contains a symbolic link to the terminal of each serial device.
    /// `reportError` gets the text of a file system error that ended a search, on the searching thread.
    /// `reportPort` gets a line with the path of a terminal, what failed and what helps. It is called on the
    /// searching thread for each terminal that was tried and is not the device. It is called on the thread of
    /// a transaction for each request that the line did not take in time.
    explicit LinuxConnector(
        std::filesystem::path serialDirectory = SERIAL_DIRECTORY, Report reportError = [](const char *) {},
        Report reportPort = [](const char *) {});
    ~LinuxConnector() override;

    /// Opens one device after the other and asks for its state. It takes the first one whose first message
    /// within 100 ms is a STATE. On purpose: a broken link ends the search, like any other error of the file
    /// system.
    bool connectInterface() override;
    /// Does not interrupt a transaction on another thread. That one ends after its time-out.
    void disconnect() override;
    /// Neither of these two starts or stops the simulator's scan. SCAN does.
    void startTesting() override;
    void stopTesting() override;
    bool isTesting() override { return test; }
    void addListener(std::shared_ptr<MsgListener> listener) override;
    void removeListener(std::shared_ptr<MsgListener> listener) override;
    /// On purpose: a message of any type counts as the reply, because nothing on the line connects a reply
    /// with its request. So a scan that comes first ends the wait. If several messages come before the caller
    /// wakes up, the last one is returned. The simulator answers at once and ignores the time-out. It returns
    /// null for the requests that it answers through the listeners only.
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
    std::atomic<unsigned> givenUp{0}; ///< number of transactions
    /// The request to stop scanning, if the line has taken nothing of it. It becomes the last request;
    /// otherwise the device would go on scanning after the end. Only atomic access.
    std::shared_ptr<Msg> unsentStop;
    TestService testService;
    /// Passes the simulator's messages to the listeners of the link.
    const std::shared_ptr<MsgListener> testListener;
};

} // namespace kelvane
