#define FIELD "field"
#define FIELDS(text) text "s"
#define MESSAGE FIELDS(FIELD)
#include <iostream>
#include <uavdevice.h>

int ownNumber();

int main() {
    LinuxConnector connector("/nowhere");
    std::cout << MESSAGE << connector.connectInterface() << ownNumber();
}
