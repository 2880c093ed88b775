#include "agent_life.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {

// Where two threads wait for each other, awake: a thread that has to be woken comes too late to get in the other's way.
class Meeting {
  public:
    void meet() {
        const int here = ++arrivals_;
        const int both = here + here % 2;
        for (int tries = 0; arrivals_ < both; ++tries) {
            if (tries > 1000) {
                std::this_thread::yield();  // the other has no processor
            }
        }
    }

  private:
    std::atomic<int> arrivals_ = 0;
};

void waste_time(int steps) {
    for (std::atomic<int> step = 0; step < steps; ++step) {
    }
}

// A visitor and the end of the life come at the same time, over and over, each a little earlier or later.
TEST(AgentLife, AVisitorAndTheEndSeeEachOther) {
    constexpr int kRounds = 100'000;
    constexpr int kDelays = 16;
    AgentLife life;
    Meeting meeting;
    bool went_in = false;
    std::thread visitor([&] {
        for (int round = 0; round < kRounds; ++round) {
            meeting.meet();
            waste_time(round % kDelays);
            {
                const Visit visit(life);
                went_in = !visit.turned_away();
                meeting.meet();
            }
            meeting.meet();
        }
    });
    int missed = 0;
    for (int round = 0; round < kRounds; ++round) {
        life.begin();
        meeting.meet();
        waste_time(round / kDelays % kDelays);
        life.end();
        const bool nobody_seen = life.is_empty();
        meeting.meet();
        missed += went_in && nobody_seen ? 1 : 0;
        meeting.meet();
    }
    visitor.join();
    EXPECT_EQ(missed, 0) << "of " << kRounds;
}

}  // namespace
