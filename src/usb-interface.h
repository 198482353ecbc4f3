#pragma once

#include "common/joining-thread.h"
#include "serial-interface-adapter.h"

#include <atomic>
#include <chrono>
#include <libusb.h>
#include <shared_mutex>

inline namespace kelvane {

/// The link to a device by bulk transfers, past the system's serial driver. No caller today.
///
/// Calls go in the order `init`, `openDevice`, `startReading`; all but the transfers belong to one thread.
class UsbInterface : public SerialInterfaceAdapter {
public:
    UsbInterface() = default;
    ~UsbInterface() override;
    UsbInterface(const UsbInterface &) = delete;
    UsbInterface &operator=(const UsbInterface &) = delete;

    std::string getName() override { return "USB"; }

    bool init();
    /// Opens the first device of our kind and takes its interfaces from the kernel's driver.
    bool openDevice();
    void startReading();
    /// Waits for the reading thread, which ends when the link is closed.
    void stopReading();
    void showDebugInfo() {}
    void serialClose() override;
    /// On purpose: true while a device is open, the reverse of its name, which no caller depends on.
    bool isClosed() override;
    /// Throws std::runtime_error when a block of at most 512 bytes does not get through whole.
    void sendBytes(buffer_t bytes, std::chrono::milliseconds timeout) override;
    /// The body of the reading thread.
    void listenUsb();
    /// Prints what a code of libusb means.
    void printResult(int code);

private:
    static constexpr std::size_t buffer_size = 512;

    bool claimInterfaces();
    bool readBlock();
    /// One bulk transfer; a code of libusb, and in `actual` the bytes moved, which may be some in spite of an
    /// error.
    int transfer(unsigned char endpoint, buffer_t &block, int &actual, unsigned int timeoutMs);

    std::atomic<bool> closed{true};
    libusb_context *cx = nullptr;
    libusb_device_handle *devh = nullptr;
    /// Shared by running transfers; exclusive where `devh` comes or goes.
    std::shared_mutex devhMutex;
    JoiningThread readingThread;
};

} // namespace kelvane
