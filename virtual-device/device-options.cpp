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

namespace {

double number(const std::string &text, double least, double most) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    double value = 0;
    if (!(stream >> value) || !stream.eof() || value < least || value > most) {
        std::ostringstream error;
        error << std::setprecision(10);
        error << '"' << text << "\" is no number from " << least << " to " << most;
        throw std::runtime_error(error.str());
    }
    return value;
}

void requireName(bool known, const std::string &kind, const std::string &name) {
    if (!known)
        throw std::runtime_error("there is no " + kind + " \"" + name + "\"; see --help");
}

std::vector<std::string> faultNames(const std::string &list) {
    std::vector<std::string> names;
    std::istringstream stream(list);
    for (std::string name; std::getline(stream, name, ',');) {
        requireName(isDeviceFault(name), "fault", name);
        names.push_back(name);
    }
    if (names.empty())
        throw std::runtime_error("none is named");
    return names;
}

struct Option {
    const char *name;
    const char *value; ///< the value's name in --help; nullptr if the option has no value
    const char *what;  ///< for --help, in lines of at most 58 characters
    /// Throws std::runtime_error that says what is wrong with the value.
    void (*take)(DeviceOptions &options, const std::string &value);
};

const Option OPTIONS[] = {
    {"link", "PATH",
     "PATH is a link to the detector while it plays. uav-vesper\n"
     "looks into /dev/serial/by-id, where only root may write.\n"
     "Without --link the path of the terminal is printed.",
     [](DeviceOptions &options, const std::string &value) { options.link = value; }},
    {"generation", "NAME", "The detector is of this generation. Default: K7",
     [](DeviceOptions &options, const std::string &value) {
         const auto generation = Proto::getEnumValue(value);
         requireName(generation.has_value(), "generation", value);
         options.generation = *generation;
     }},
    {"pace", "MS", "A scan comes every MS milliseconds. Default: 500",
     [](DeviceOptions &options, const std::string &value) {
         options.pace = milliseconds(static_cast<int>(number(value, 1, 3600000)));
     }},
    {"scene", "NAME", "The detector receives this scene. Default: drone",
     [](DeviceOptions &options, const std::string &value) {
         requireName(sceneOf(value).has_value(), "scene", value);
         options.scene = value;
     }},
    {"battery", "PERCENT", "The battery has this charge, 0 to 100. Default: 87",
     [](DeviceOptions &options, const std::string &value) {
         options.battery = static_cast<int>(number(value, 0, 100));
     }},
    {"faults", "LIST", "The detector has these faults, separated by commas.",
     [](DeviceOptions &options, const std::string &value) { options.faults = faultNames(value); }},
    {"period", "SECONDS",
     "One of the faults comes about every SECONDS and stays for\n"
     "a quarter of that time. Without --period it always stays.",
     [](DeviceOptions &options, const std::string &value) {
         options.faultPeriod = milliseconds(static_cast<int>(1000 * number(value, 0.001, 86400)));
     }},
    {"seed", "NUMBER",
     "The same number brings the same faults after the same\n"
     "times. Without --seed a number is drawn and printed.",
     [](DeviceOptions &options, const std::string &value) {
         options.seed = static_cast<unsigned>(number(value, 0, 4294967295.0));
     }},
    {"replay", "FILE", "Settings and scans come from this recording.",
     [](DeviceOptions &options, const std::string &value) { options.replay = value; }},
    {"speed", "NUMBER", "The recording plays NUMBER times as fast. Default: 1",
     [](DeviceOptions &options, const std::string &value) { options.speed = number(value, 0.001, 1000); }},
    {"tap", "DEVICE",
     "Plays nothing: passes each byte between this real\n"
     "detector and the program. Needs --record.",
     [](DeviceOptions &options, const std::string &value) { options.tapped = value; }},
    {"record", "FILE", "The tap writes all bytes of both sides to this file.",
     [](DeviceOptions &options, const std::string &value) { options.record = value; }},
    {"help", nullptr, "Prints this text.",
     [](DeviceOptions &options, const std::string &) { options.help = true; }},
};

/// A line of --help, or several. The text is in the second column.
std::string row(const std::string &head, std::size_t width, std::string what) {
    const std::string margin(width, ' ');
    for (std::size_t end = 0; (end = what.find('\n', end)) != std::string::npos; end += width)
        what.insert(++end, margin);
    std::string line = "  " + head;
    line.resize(std::max(width, line.size() + 1), ' ');
    return line + what + "\n";
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
    require(options.tapped.empty() == options.record.empty(), "--tap and --record go together");
    if (!options.tapped.empty())
        refuse({"generation", "pace", "scene", "battery", "faults", "replay"},
               " is for the virtual detector; --tap uses a real one");
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

std::string deviceOptionsHelp() {
    std::string help = "Options:\n";
    for (const Option &option : OPTIONS)
        help +=
            row(std::string("--") + option.name + " " + (option.value ? option.value : ""), 22, option.what);
    help += "\nGenerations:\n ";
    for (const ProtoEnum generation : Proto::values())
        help += " " + Proto(generation).name();
    help += "\n\nScenes:\n";
    for (const NamedScene &scene : namedScenes())
        help += row(scene.name, 12, scene.what);
    help += "\nFaults:\n";
    for (const DeviceFault &fault : deviceFaults())
        help += row(fault.name, 12, fault.what);
    return help;
}

DeviceOptions parseDeviceOptions(int argc, char **argv) {
    std::vector<option> known;
    for (const Option &option : OPTIONS)
        known.push_back({option.name, option.value ? required_argument : no_argument, nullptr, 0});
    known.push_back({});
    DeviceOptions options;
    options.seed = std::random_device()();
    optind = 0; // getopt starts again
    opterr = 0;
    std::set<std::string> given;
    for (int word = 1, index = 0, result;
         (result = getopt_long(argc, argv, "+:", known.data(), &index)) != -1; word = optind) {
        if (result == ':')
            throw std::runtime_error(std::string(argv[word]) + " needs a value");
        if (result != 0)
            throw std::runtime_error(std::string(argv[word]) + " is no option; see --help");
        const Option &option = OPTIONS[index];
        try {
            option.take(options, optarg ? optarg : "");
        } catch (const std::runtime_error &error) {
            throw std::runtime_error(std::string("--") + option.name + ": " + error.what());
        }
        given.insert(option.name);
    }
    if (optind < argc)
        throw std::runtime_error(std::string(argv[optind]) + " is no option; see --help");
    checkTogether(options, given);
    return options;
}
