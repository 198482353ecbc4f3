#include "device-faults.h"
#include "device-options.h"
#include "proto.h"
#include "scenes.h"

#include <cstdio>
#include <fstream>
#include <gmock/gmock.h>
#include <iterator>
#include <memory>
#include <regex>
#include <sstream>

using namespace testing;
using Names = std::vector<std::string>;

/// The names that a section of the man page explains, in order.
static Names inManual(const std::string &wanted) {
    static const std::regex NAME(R"(\.BI? ([^ ]+).*)"), BACKSLASH(R"(\\)");
    std::ifstream page(PACKAGING_DIR "/uav-vesper-device.1");
    Names names;
    std::smatch name;
    for (std::string line, before, section; std::getline(page, line); before = line)
        if (line.rfind(".SH ", 0) == 0)
            section = line.substr(4);
        else if (section == wanted && before == ".TP" && std::regex_match(line, name, NAME))
            names.push_back(std::regex_replace(name.str(1), BACKSLASH, ""));
    return names;
}

/// The words that bash offers after these.
static Names offered(const std::string &words) {
    const std::string command = "bash -c '. " PACKAGING_DIR "/uav-vesper-device.bash; compopt() { :; };"
                                "COMP_WORDS=(uav-vesper-device " +
                                words +
                                " \"\"); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _uav_vesper_device;"
                                "echo \"${COMPREPLY[@]}\"'";
    const std::unique_ptr<FILE, int (*)(FILE *)> bash(popen(command.c_str(), "r"), pclose);
    std::string text;
    for (int letter; (letter = std::getc(bash.get())) != EOF;)
        text += static_cast<char>(letter);
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

TEST(VirtualDevice, ItsManualAndItsCompletionTellOfEveryName) {
    Names generations, scenes, faults, options;
    for (const ProtoEnum generation : Proto::values())
        generations.push_back(Proto(generation).name());
    for (const NamedScene &scene : namedScenes())
        scenes.push_back(scene.name);
    for (const DeviceFault &fault : deviceFaults())
        faults.push_back(fault.name);
    static const std::regex OPTION("\n  (--[a-z]+) ");
    const std::string help = deviceOptionsHelp();
    for (std::sregex_iterator found(help.begin(), help.end(), OPTION), end; found != end; ++found)
        options.push_back(found->str(1));
    ASSERT_THAT(options, Contains("--help"));

    const std::tuple<Names, const char *, const char *> cases[] = {
        {generations, "GENERATIONS", "--generation"},
        {scenes, "SCENES", "--scene"},
        {faults, "FAULTS", "--faults"},
        {options, "OPTIONS", ""},
    };
    for (const auto &[names, section, before] : cases) {
        EXPECT_EQ(inManual(section), names);
        EXPECT_EQ(offered(before), names) << before;
    }
    for (const std::string &option : options) // no option in place of a value, and none twice
        EXPECT_THAT(offered(option), Not(Contains(StartsWith("--")))) << option;
    EXPECT_THAT(offered("--scene drone"), AllOf(Contains("--pace"), Not(Contains("--scene"))));
    EXPECT_EQ(offered("--scene ="), scenes);
}
