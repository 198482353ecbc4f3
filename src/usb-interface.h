#pragma once

#include "common/joining-thread.h"
#include "serial-interface-adapter.h"

#include <atomic>
#include <chrono>
#include <libusb.h>
#include <shared_mutex>

inline namespace kelvane {

/// A link to a device that uses USB bulk transfers instead of the system's serial driver. No caller today.
///
/// Call `init`, `openDevice` and `startReading` in this order. All calls but the transfers belong to one
/// thread.
class UsbInterface : public SerialInterfaceAdapter {
public:
    UsbInterface() = default;
    ~UsbInterface() override;
    UsbInterface(const UsbInterface &) = delete;
    UsbInterface &operator=(const UsbInterface &) = delete;

    std::string getName() override { return "USB"; }

    bool init();
    /// Opens the first Kelvane device and takes its interfaces from the kernel's driver.
    bool openDevice();
    void startReading();
    /// Waits for the reading thread. That one ends when the link is closed.
    void stopReading();
    void showDebugInfo() {}
    void serialClose() override;
    /// On purpose: true while a device is open, so the reverse of its name. No caller depends on it.
    bool isClosed() override;
    /// Sends blocks of at most 512 bytes. Throws std::runtime_error if a block is not sent completely.
    void sendBytes(buffer_t bytes, std::chrono::milliseconds timeout) override;
    /// The body of the reading thread.
    void listenUsb();
    /// Prints the meaning of a libusb code.
    void printResult(int code);

private:
    static constexpr std::size_t buffer_size = 512;

    bool claimInterfaces();
    bool readBlock();
    /// Makes one bulk transfer. Returns a libusb code. `actual` is the number of bytes moved; an error does
    /// not mean that it is 0.
    int transfer(unsigned char endpoint, buffer_t &block, int &actual, unsigned int timeoutMs);

    std::atomic<bool> closed{true};
    libusb_context *cx = nullptr;
    libusb_device_handle *devh = nullptr;
    /// Held shared by running transfers, and exclusively to change `devh`.
    std::shared_mutex devhMutex;
    JoiningThread readingThread;
};

} // namespace kelvane
