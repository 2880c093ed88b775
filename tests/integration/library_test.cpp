// The shared library as a linker sees it.
#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <stdexcept>
#include <string>

#include "agent_in_vm.h"
#include "java_crw_demo.h"
#include "process.h"

using testing::HasSubstr;
using testing::Not;
using testing::Pair;
using testing::ThrowsMessage;
using testing::UnorderedElementsAre;

namespace {

// exports.map says what the linker lets out; what it names must be there, too. Its only patterns are of the proxies.
TEST(Library, ExportsItsInterfaceAndNothingElse) {
    const Finished nm = run({"nm", "-D", "--defined-only", kLibrary});
    ASSERT_EQ(nm.status, 0) << nm.err;
    std::set<std::string> exported;
    std::map<std::string, int> of_proxies;
    for (const std::string& line : lines_of(nm.out)) {
        const std::string name = line.substr(line.rfind(' ') + 1);
        std::smatch function;
        if (std::regex_match(name, function, std::regex("_ZN[0-9]+NS[A-Za-z0-9]+?([47](Init|Destroy)E.*)"))) {
            ++of_proxies[function[2]];
        } else {
            exported.insert(name);
        }
    }
    EXPECT_THAT(of_proxies, UnorderedElementsAre(Pair("Init", 21), Pair("Destroy", 21)));
    std::ifstream list(VANTREL_EXPORTS);
    std::set<std::string> expected;
    for (std::string line; std::getline(list, line);) {
        std::smatch name;
        if (std::regex_match(line, name, std::regex(" +([A-Za-z0-9_]+);"))) {
            expected.insert(name[1]);
        }
    }
    EXPECT_EQ(exported, expected);
    EXPECT_EQ(exported.size(), 38);
}

// Another library's `allocate` must not come between ours and its callers.
TEST(Library, ItsOwnReferencesBindInside) {
    const Finished readelf = run({"readelf", "--relocs", "--wide", kLibrary});
    ASSERT_THAT(readelf.out, HasSubstr("vfprintf")) << "what is imported is listed";
    for (const char* name : {"allocate", "check_jvmti_error", "covered_by_list", "fatal_error", "get_token"}) {
        EXPECT_THAT(readelf.out, Not(HasSubstr(std::string(" ") + name)));
    }
}

// The library has a C++ runtime of its own: an exception that a caller's error handler throws must still find its way.
TEST(Library, AnErrorHandlerMayThrowThroughIt) {
    void* library = dlopen(kLibrary.c_str(), RTLD_NOW);
    ASSERT_NE(library, nullptr) << dlerror();
    auto* const class_name =
        reinterpret_cast<decltype(&java_crw_demo_classname)>(dlsym(library, "java_crw_demo_classname"));
    ASSERT_NE(class_name, nullptr);
    const unsigned char image[] = {0xCA, 0xFE, 0xBA};
    const auto handler = [](const char* message, const char*, int) { throw std::runtime_error(message); };
    for (int round = 0; round < 2; ++round) {
        EXPECT_THAT([&] { class_name(image, sizeof image, handler); },
                    ThrowsMessage<std::runtime_error>(HasSubstr("(ci)->input_position <= (ci)->input_len")));
    }
    dlclose(library);
}

TEST(Library, NeedsNoCppRuntime) {
    const Finished readelf = run({"readelf", "--dynamic", "--wide", kLibrary});
    EXPECT_THAT(readelf.out, HasSubstr("libc.so"));
    EXPECT_THAT(readelf.out, Not(HasSubstr("stdc++")));
}

}  // namespace
