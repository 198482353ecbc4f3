#include "usb-bus.h"

#include <algorithm>
#include <libusb.h>

void UsbBus::note(const std::string &call, int first, int second) {
    const std::lock_guard lock(mutex);
    calls += call + " " + std::to_string(first) + " " + std::to_string(second) + "|";
}

int UsbBus::read(unsigned char *data, int length, int *actual, unsigned timeout) {
    const std::lock_guard lock(mutex);
    readSizes.emplace(length, timeout);
    *actual = 0;
    if (incoming.empty())
        return LIBUSB_ERROR_TIMEOUT;
    const Block block = std::move(incoming.front());
    incoming.pop_front();
    *actual =
        static_cast<int>(block.bytes.copy(reinterpret_cast<char *>(data), static_cast<std::size_t>(length)));
    return block.code;
}

int UsbBus::send(const unsigned char *data, int length, int *actual, unsigned timeout) {
    note("send", length, static_cast<int>(timeout));
    const auto taken = std::min(static_cast<std::size_t>(length), mostBytes);
    outgoing.append(reinterpret_cast<const char *>(data), taken);
    *actual = static_cast<int>(taken);
    return sendCode;
}

extern "C" {

int libusb_init(libusb_context **context) {
    const int code = UsbBus::current->initCode;
    *context = code < 0 ? nullptr : reinterpret_cast<libusb_context *>(UsbBus::current);
    return code;
}
void libusb_exit(libusb_context *) {
    UsbBus::current->note("exit");
}
libusb_device_handle *libusb_open_device_with_vid_pid(libusb_context *, uint16_t vendor, uint16_t product) {
    UsbBus::current->note("open", vendor, product);
    return UsbBus::current->hasDevice ? reinterpret_cast<libusb_device_handle *>(UsbBus::current) : nullptr;
}
void libusb_close(libusb_device_handle *) {
    UsbBus::current->note("close");
}
int libusb_kernel_driver_active(libusb_device_handle *, int interface) {
    return interface == 0 ? 1 : 0;
}
int libusb_detach_kernel_driver(libusb_device_handle *, int interface) {
    UsbBus::current->note("detach", interface);
    return 0;
}
int libusb_claim_interface(libusb_device_handle *, int interface) {
    UsbBus::current->note("claim", interface);
    return interface == UsbBus::current->deniedInterface ? LIBUSB_ERROR_BUSY : 0;
}
int libusb_bulk_transfer(libusb_device_handle *, unsigned char endpoint, unsigned char *data, int length,
                         int *actual, unsigned timeout) {
    switch (endpoint) {
    case 0x82:
        return UsbBus::current->read(data, length, actual, timeout);
    case 0x02:
        return UsbBus::current->send(data, length, actual, timeout);
    }
    return LIBUSB_ERROR_NOT_FOUND;
}

} // extern "C"
