#include "channel.h"

int main() {
    report("scan-through-channel", channelRatio(scanText(), 10), "RapidJSON documents");
}
