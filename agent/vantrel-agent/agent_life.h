// The agent's life in a VM, and who is inside the agent: what lets Agent_OnUnload give the proxies' references back
// without taking them from a thread that uses them.
//
// A life begins with the VM's initialisation and ends with the agent's unloading. Every way into the agent from outside
// (the hot key's callback, the companion's native methods) is a Visit, which announces itself before it looks whether
// the life is over; the unloading says that the life is over before it looks for visitors. At least one of the two
// therefore sees the other: a visitor leaves at once, or the references stay. Nobody waits for anybody, for a visitor
// may be held up in the VM until the process ends.
//
// Nothing here is destroyed when the process ends, since any thread may still be in it. It knows neither the VM nor the
// rest of the agent.
#ifndef VANTREL_AGENT_LIFE_H
#define VANTREL_AGENT_LIFE_H

#include <atomic>

class AgentLife {
  public:
    // Begins a life if there is none. Where a library was named twice, its second initialisation finds one, and is only
    // counted. Returns how many initialisations this life has had, 1 for its first.
    int begin();

    // Ends the life there is: from here on visitors leave at once. Returns whether there was one; where there was none,
    // nothing changes.
    bool end();

    // Whether no visitor is inside. If that is so after end(), nobody uses what the life had, and nobody will again.
    [[nodiscard]] bool is_empty() const { return visitors_ == 0; }

  private:
    friend class Visit;

    std::atomic<int> initialisations_ = 0;  // of the life there is; 0 where there is none
    std::atomic<bool> over_ = false;
    std::atomic<int> visitors_ = 0;
};

// The one life that the agent has at a time.
extern AgentLife agent_life;

// A thread's stay inside the agent, which lasts as long as this object. Stays may nest.
class Visit {
  public:
    explicit Visit(AgentLife& life = agent_life) : life_(life), turned_away_((++life.visitors_, life.over_)) {}
    ~Visit() { --life_.visitors_; }
    Visit(const Visit&) = delete;
    Visit& operator=(const Visit&) = delete;

    // Whether the visitor has to leave at once and touch nothing: the agent is being unloaded, or was.
    [[nodiscard]] bool turned_away() const { return turned_away_; }

  private:
    AgentLife& life_;
    bool turned_away_;
};

#endif
