#include "usb-interface.h"

#include "reading-loop.h"

#include <cstdio>
#include <stdexcept>

namespace {

constexpr uint16_t VENDOR_ID = 0x1A86;
constexpr uint16_t PRODUCT_ID = 0xFE0C;
constexpr unsigned char ENDPOINT_IN = 0x82;
constexpr unsigned char ENDPOINT_OUT = 0x02;
constexpr unsigned int READ_TIMEOUT = 100; // ms

const char *resultText(int code) {
    if (code >= 0)
        return "successful";
    switch (code) {
    case LIBUSB_ERROR_IO:
        return "error: IO";
    case LIBUSB_ERROR_INVALID_PARAM:
        return "error: invalid param";
    case LIBUSB_ERROR_ACCESS:
        return "error: access";
    case LIBUSB_ERROR_NO_DEVICE:
        return "error: no device";
    case LIBUSB_ERROR_NOT_FOUND:
        return "error: not found";
    case LIBUSB_ERROR_BUSY:
        return "error: busy";
    case LIBUSB_ERROR_TIMEOUT:
        return "error: timeout";
    case LIBUSB_ERROR_OVERFLOW:
        return "error: overflow";
    case LIBUSB_ERROR_PIPE:
        return "error: pipe";
    case LIBUSB_ERROR_INTERRUPTED:
        return "error: interrupted";
    case LIBUSB_ERROR_NO_MEM:
        return "error: no mem";
    case LIBUSB_ERROR_NOT_SUPPORTED:
        return "error: not supported";
    case LIBUSB_ERROR_OTHER:
        return "error: other";
    default:
        return "error: unknown";
    }
}

} // namespace

UsbInterface::~UsbInterface() {
    UsbInterface::serialClose();
    stopReading();
    if (cx)
        libusb_exit(cx);
}

bool UsbInterface::init() {
    const int code = libusb_init(&cx);
    std::printf("usbinit ");
    printResult(code);
    return code >= 0;
}

bool UsbInterface::openDevice() {
    if (closed)
        stopReading(); // waits for the thread of the former device
    {
        const std::lock_guard lock(devhMutex);
        devh = cx ? libusb_open_device_with_vid_pid(cx, VENDOR_ID, PRODUCT_ID) : nullptr;
    }
    if (!devh) {
        std::printf("Error finding USB device\n");
        serialClose();
        return false;
    }
    std::printf("Device connected\n");
    if (!claimInterfaces()) {
        serialClose();
        return false;
    }
    closed = false;
    return true;
}

bool UsbInterface::claimInterfaces() {
    for (const int interface : {0, 1}) {
        if (libusb_kernel_driver_active(devh, interface) != 0)
            libusb_detach_kernel_driver(devh, interface);
        if (libusb_claim_interface(devh, interface) < 0)
            return false;
    }
    return true;
}

void UsbInterface::startReading() {
    if (!closed && !readingThread.isStarted())
        readingThread.start([this] { listenUsb(); });
}

void UsbInterface::stopReading() {
    readingThread.finish();
}

void UsbInterface::listenUsb() {
    readUntil(
        closed, [this] { return readBlock(); });
}

bool UsbInterface::readBlock() {
    buffer_t bytes(buffer_size, '\0');
    int actual = 0;
    const int code = transfer(ENDPOINT_IN, bytes, actual, READ_TIMEOUT);
    if (code == LIBUSB_ERROR_IO || actual <= 0)
        return false;
    bytes.resize(static_cast<std::size_t>(actual));
    processNewData(std::move(bytes));
    return true;
}

void UsbInterface::sendBytes(buffer_t bytes, std::chrono::milliseconds timeout) {
    for (std::size_t begin = 0; begin < bytes.size(); begin += buffer_size) {
        buffer_t block = bytes.substr(begin, buffer_size);
        int actual = 0;
        const int code = transfer(ENDPOINT_OUT, block, actual, static_cast<unsigned int>(timeout.count()));
        if (code < 0 || actual != static_cast<int>(block.size()))
            throw std::runtime_error("usb IO error");
    }
}

int UsbInterface::transfer(unsigned char endpoint, buffer_t &block, int &actual, unsigned int timeoutMs) {
    const std::shared_lock lock(devhMutex);
    if (!devh)
        return LIBUSB_ERROR_NO_DEVICE;
    return libusb_bulk_transfer(devh, endpoint, reinterpret_cast<unsigned char *>(block.data()),
                                static_cast<int>(block.size()), &actual, timeoutMs);
}

void UsbInterface::serialClose() {
    closed = true;
    const std::lock_guard lock(devhMutex); // waits for a running transfer, until its time-out at most
    if (devh)
        libusb_close(devh);
    devh = nullptr;
}

bool UsbInterface::isClosed() {
    const std::shared_lock lock(devhMutex);
    return cx && devh;
}

void UsbInterface::printResult(int code) {
    std::printf("%s\n", resultText(code));
}
