#include "version.h"

std::string version::getVersion() {
    return UAV_VERSION;
}
