#include "version.h"

std::string version::getVersion() {
    return "1.1";
}
