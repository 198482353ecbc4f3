#include "channel.h"

int main() {
    report("state-through-channel",
           channelRatio("{\n\"battLvl\" : 87,\n\"battVoltage\" : 3.900000,\n\"bootload\" : false,\n"
                        "\"stateRanges\" : {},\n\"type\" : \"STATE\"\n}\n",
                        500),
           "RapidJSON documents");
}
