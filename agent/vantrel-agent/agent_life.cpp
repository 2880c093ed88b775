#include "agent_life.h"

constinit AgentLife agent_life;

int AgentLife::begin() {
    over_ = false;
    return ++initialisations_;
}

bool AgentLife::end() {
    const bool had_begun = initialisations_.exchange(0) != 0;
    if (had_begun) {
        over_ = true;
    }
    return had_begun;
}
