// Several programs under the agent on one display. The X server gives a grab to one client only, so one agent holds the
// hot key for all of them, and passes each press on to the program that it is meant for.
//
// The agents find each other by windows. Each agent makes one, which is never shown, with these properties:
//
//     _VANTREL_AGENT     five CARDINALs: version of this property, process id, the hot key's keysym and modifiers, and
//                        the agent's Standing
//     _VANTREL_ASKED     a CARDINAL: the higher it is, the later this agent was last asked to show its inspector
//     WM_CLIENT_MACHINE  the machine that the process is on
//
// When an agent ends, however it ends, the X server destroys its window and tells the others. A press is passed on as a
// client message _VANTREL_SHOW to the window, which only the client that has made the window receives. Agents that have
// different hot keys have nothing to do with each other.
#ifndef VANTREL_X11_AGENTS_H
#define VANTREL_X11_AGENTS_H

#include <xcb/xcb.h>

#include <cstdint>
#include <string>

#include "hot_key.h"

namespace x11 {

// Whether an agent has the hot key.
enum class Standing : uint32_t {
    trying,  // asks for it at this moment
    has_it,
    has_not,
};

// One agent's place among those on its display. Not safe for use from several threads.
struct Agents {
    struct Atoms {
        xcb_atom_t agent;
        xcb_atom_t asked;
        xcb_atom_t show;
        xcb_atom_t pid;
    };

    xcb_connection_t* connection;
    HotKey hot_key;
    std::string machine;
    Atoms atoms;
    xcb_window_t root;  // the first screen's, on which the agents' windows are
    xcb_window_t own;
    Standing standing;
};

// Makes this process's window. Its standing is `trying` at first.
Agents join_agents(xcb_connection_t* connection, const HotKey& hot_key);

// Tells the others whether this agent has the hot key.
void set_standing(Agents& agents, Standing standing);

// How the other agents with the same hot key stand: has_it if one of them has it; if none has, trying if one of them
// tries; or else has_not. From now on the server sends us an event when one of them ends (ends_another recognises it)
// and when one of them changes its standing (changes_another).
Standing look_at_others(const Agents& agents);

// Decides which agent a press is meant for: the one whose program has the window with the focus; if there is none, the
// one that was asked last; if none has been asked yet, this one. That agent is from now on the one that was asked last.
// Returns true if it is this one; otherwise passes the press on to it and returns false.
bool take_or_pass_on(const Agents& agents);

// Whether an event is a press that another agent has passed on to this one.
bool is_passed_on(const Agents& agents, const xcb_generic_event_t& event);

// Whether an event says that another agent has ended, or that another agent's standing has changed.
bool ends_another(const xcb_generic_event_t& event);
bool changes_another(const Agents& agents, const xcb_generic_event_t& event);

}  // namespace x11

#endif
