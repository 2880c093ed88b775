#include "scenario.h"

#include <fstream>
#include <sstream>
#include <thread>

#include "test_folder.h"

using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

constexpr auto kPollInterval = milliseconds(5);
const std::string kWindow = "Vantrel";
const std::filesystem::path kProgramJar = kTestFolder / "scenario-program.jar";

}  // namespace

void Scenario::run_under_agent(const Arguments& options) {
    if (!manager) {
        manager.emplace(x);
    }
    asked_ = 0;
    std::filesystem::remove(folder.path / "commands");
    // A program that runs for seconds is done sooner with the simpler compiler and collector, which leave it more of
    // the processors' time.
    const Arguments vm = {"-XX:TieredStopAtLevel=1", "-XX:+UseSerialGC", "-Duser.home=" + folder.path.string()};
    program.emplace(java_under_agent(GetParam(), vm + options),
                    ProcessOptions{.folder = folder.path, .environment = {x.display(), "XDG_CONFIG_HOME="}});
}

void Scenario::start(const Arguments& options) {
    run_under_agent(options + Arguments{"-cp", kProgramJar, "scenario.Scenario"});
    ASSERT_TRUE(program->reaches([this] { return x.shows("Scenario"); })) << program->err();
    EXPECT_TRUE(eventually([this] { return ask("focus") != "none"; }));
    ask("log");
}

void Scenario::start_guest(const std::filesystem::path& jar, const Arguments& main) {
    run_under_agent(Arguments{"-cp", kProgramJar.string() + ":" + jar.string(), "scenario.Guest"} + main);
}

std::string Scenario::ask(const std::string& command) {
    const std::string number = std::to_string(++asked_);
    std::ofstream(folder.path / "commands", std::ios::app) << command << "\n";
    std::string answer;
    const auto answered = [&] {
        const std::string out = program->out();
        const std::string prefix = number + "| ";
        const std::string end = number + ".";
        answer.clear();
        std::istringstream lines(out);
        for (std::string line; std::getline(lines, line);) {
            if (line == end) {
                return true;
            }
            if (line.starts_with(prefix)) {
                answer += (answer.empty() ? "" : "\n") + line.substr(prefix.size());
            }
        }
        return false;
    };
    EXPECT_TRUE(eventually(answered, std::chrono::seconds(30))) << command << ": no answer\n" << program->err();
    EXPECT_FALSE(answer.starts_with("failed: ")) << command << ": " << answer;
    return answer;
}

Place Scenario::place(const std::string& command) {
    Place place;
    std::istringstream(ask(command)) >> place.x >> place.y >> place.width >> place.height;
    return place;
}

Place Scenario::where(const std::string& name) {
    return place((name.starts_with("vantrel") ? "inspector-where " : "where ") + name);
}

void Scenario::point_at(const Place& place) {
    keys.point_at(place.x + place.width / 2, place.y + place.height / 2);
}

void Scenario::click(const Place& place, int button) {
    point_at(place);
    keys.click(button);
}

bool Scenario::inspector_is_open() {
    return x.shows(kWindow);
}

void Scenario::open_inspector() {
    keys.press({XK_Control_L, XK_F12});
    ASSERT_TRUE(eventually([this] { return inspector_is_open(); })) << program->err();
}

void Scenario::close_inspector() {
    keys.press({XK_Control_L, XK_F12});
    ASSERT_TRUE(eventually([this] { return !inspector_is_open(); })) << program->err();
}

bool Scenario::eventually(const std::function<bool()>& condition, milliseconds limit) {
    const auto deadline = steady_clock::now() + limit;
    while (!condition()) {
        if (steady_clock::now() > deadline) {
            return false;
        }
        std::this_thread::sleep_for(kPollInterval);
    }
    return true;
}

int Scenario::line_of(const std::string& file, const std::string& text) {
    std::ifstream source(std::filesystem::path(VANTREL_SCENARIO_SOURCES) / "scenario" / file);
    std::string line;
    for (int number = 1; std::getline(source, line); ++number) {
        if (line.find(text) != std::string::npos) {
            return number;
        }
    }
    ADD_FAILURE() << file << " has no line with " << text;
    return 0;
}

Picture Scenario::settled_picture(const Place& place, const Picture& before) const {
    // Longer than a program needs between two steps of painting, shorter than half the blink of a caret.
    constexpr auto kMoment = milliseconds(200);
    Picture now = before;
    EXPECT_TRUE(eventually([&] {
        const Picture last = now;
        std::this_thread::sleep_for(kMoment);
        now = picture(place);
        return now != before && now == last;
    }));
    return now;
}

void Scenario::take_picture(const std::string& name) {
    const std::filesystem::path pictures = kTestFolder / "pictures";
    std::filesystem::create_directories(pictures);
    x.take_picture(pictures / (name + "-" + std::to_string(GetParam()) + ".png"));
}
