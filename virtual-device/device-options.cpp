#include "device-options.h"

#include "device-faults.h"
#include "scenes.h"

#include <algorithm>
#include <getopt.h>
#include <initializer_list>
#include <iomanip>
#include <random>
#include <set>
#include <sstream>
#include <stdexcept>

using std::chrono::milliseconds;

const char *const DEVICE_OPTIONS_HELP =
    "  --link PATH         where the program finds it; a directory of root's, such as the system's\n"
    "                      /dev/serial/by-id, needs root. Without it the terminal's own path is printed\n"
    "  --generation NAME   of the detector, K6 for one; K7 unless told\n"
    "  --pace MS           between scans; 500 unless told\n"
    "  --scene NAME        drone (comes nearer and goes; unless told), street (busy Wi-Fi), silence, peaks\n"
    "  --battery PERCENT   0 to 100\n"
    "  --faults LIST       with commas: late, silent, deaf, sweeps (takes bytes only between scans),\n"
    "                      refusing, noise, cut, unplug\n"
    "  --period SECONDS    a fault comes about so often and stays for a quarter of that; without it the one\n"
    "                      fault stays\n"
    "  --seed NUMBER       the same faults after the same times again\n"
    "  --replay FILE       plays a recording when told to scan\n"
    "  --speed NUMBER      so many times as fast as it was recorded\n"
    "  --tap DEVICE        stands between this device and the program and passes every byte on\n"
    "  --record FILE       where --tap writes both directions, a JSON object a line: ms, from, text\n"
    "  --help              this\n";

namespace {

double number(const std::string &option, const std::string &text, double least, double most) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    double value = 0;
    if (!(stream >> value) || !stream.eof() || value < least || value > most) {
        std::ostringstream error;
        error << std::setprecision(10);
        error << option << ": \"" << text << "\" is no number from " << least << " to " << most;
        throw std::runtime_error(error.str());
    }
    return value;
}

std::vector<std::string> faultNames(const std::string &list) {
    std::vector<std::string> names;
    std::istringstream stream(list);
    for (std::string name; std::getline(stream, name, ',');) {
        if (!isDeviceFault(name))
            throw std::runtime_error("--faults: there is no fault \"" + name + "\"");
        names.push_back(name);
    }
    if (names.empty())
        throw std::runtime_error("--faults: none is named");
    return names;
}

ProtoEnum generationNamed(const std::string &name) {
    const auto generation = Proto::getEnumValue(name);
    if (!generation)
        throw std::runtime_error("--generation: there is no generation \"" + name + "\"");
    return *generation;
}

void takeOption(DeviceOptions &options, const std::string &name, const std::string &value) {
    const std::string option = "--" + name;
    if (name == "help")
        options.help = true;
    else if (name == "link")
        options.link = value;
    else if (name == "generation")
        options.generation = generationNamed(value);
    else if (name == "pace")
        options.pace = milliseconds(static_cast<int>(number(option, value, 1, 3600000)));
    else if (name == "scene")
        options.scene = value;
    else if (name == "battery")
        options.battery = static_cast<int>(number(option, value, 0, 100));
    else if (name == "faults")
        options.faults = faultNames(value);
    else if (name == "period")
        options.faultPeriod = milliseconds(static_cast<int>(1000 * number(option, value, 0.001, 86400)));
    else if (name == "seed")
        options.seed = static_cast<unsigned>(number(option, value, 0, 4294967295.0));
    else if (name == "replay")
        options.replay = value;
    else if (name == "speed")
        options.speed = number(option, value, 0.001, 1000);
    else if (name == "tap")
        options.tapped = value;
    else if (name == "record")
        options.record = value;
}

/// `given` are the names of the options that the user gave.
void checkTogether(const DeviceOptions &options, const std::set<std::string> &given) {
    const auto require = [](bool holds, const char *what) {
        if (!holds)
            throw std::runtime_error(what);
    };
    const auto refuse = [&](std::initializer_list<const char *> names, const std::string &why) {
        for (const char *name : names)
            if (given.count(name) > 0)
                throw std::runtime_error("--" + std::string(name) + why);
    };
    require(sceneOf(options.scene).has_value(), "--scene: drone, street, silence or peaks");
    require(options.tapped.empty() == options.record.empty(), "--tap and --record go together");
    if (!options.tapped.empty())
        refuse({"generation", "pace", "scene", "battery", "faults", "replay"},
               " is for a device that is played; --tap has a real one");
    if (options.replay.empty())
        refuse({"speed"}, " needs --replay");
    else
        refuse({"pace", "scene"}, " is not for --replay, which plays the scans of the recording");
    if (options.faults.empty())
        refuse({"period", "seed"}, " needs --faults");
    const bool unplugs = std::count(options.faults.begin(), options.faults.end(), "unplug") > 0;
    require(options.faultPeriod.count() > 0 || (options.faults.size() <= 1 && !unplugs),
            "--faults: several of them, or unplug, need a --period");
}

} // namespace

DeviceOptions parseDeviceOptions(int argc, char **argv) {
    static const char *const NAMES[] = {"link", "generation", "pace",  "scene", "battery", "faults", "period",
                                        "seed", "replay",     "speed", "tap",   "record",  "help"};
    std::vector<option> known;
    for (const char *name : NAMES)
        known.push_back({name, std::string(name) == "help" ? no_argument : required_argument, nullptr, 0});
    known.push_back({});
    DeviceOptions options;
    options.seed = std::random_device()();
    optind = 0;
    opterr = 0;
    std::set<std::string> given;
    for (int word = 1, index = 0, result;
         (result = getopt_long(argc, argv, "+:", known.data(), &index)) != -1; word = optind) {
        if (result == ':')
            throw std::runtime_error(std::string(argv[word]) + " needs a value");
        if (result != 0)
            throw std::runtime_error(std::string(argv[word]) + " is no option; --help tells of all");
        const std::string name = known[static_cast<std::size_t>(index)].name;
        takeOption(options, name, optarg ? optarg : "");
        given.insert(name);
    }
    if (optind < argc)
        throw std::runtime_error(std::string(argv[optind]) + " is no option; --help tells of all");
    checkTogether(options, given);
    return options;
}
