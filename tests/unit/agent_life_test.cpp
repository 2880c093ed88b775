#include "agent_life.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

// A visitor goes in and out all the time, and a life after the other ends at whatever moment of that.
TEST(AgentLife, NobodyIsInsideOnceItsEndHasSeenNobody) {
    constexpr int kLives = 50'000;
    AgentLife life;
    std::atomic<long> visits = 0;
    std::atomic<bool> given_back = false;  // what a visitor uses
    std::atomic<bool> done = false;
    int robbed = 0;
    std::thread visitor([&] {
        for (; !done; ++visits) {
            const Visit visit(life);
            for (int use = 0; use < 10 && !visit.turned_away(); ++use) {
                robbed += given_back ? 1 : 0;
            }
        }
    });
    const auto wait_for_a_visit = [&visits] {
        const long before = visits;
        for (int tries = 0; visits < before + 2; ++tries) {
            if (tries > 1000) {
                std::this_thread::yield();  // the visitor has no processor
            }
        }
    };
    int given_back_lives = 0;
    for (int lives = 0; lives < kLives; ++lives) {
        life.begin();
        wait_for_a_visit();
        life.end();
        if (life.is_empty()) {
            given_back = true;
            ++given_back_lives;
            wait_for_a_visit();
            given_back = false;
        }
    }
    done = true;
    visitor.join();
    EXPECT_EQ(robbed, 0);
    EXPECT_GT(given_back_lives, 0);
}
