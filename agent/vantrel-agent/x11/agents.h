// Several programs under the agent on one display. Only one client can hold a grab, so one agent holds the hot key for
// all of them and passes each press on to the program that it is meant for.
//
// Every agent makes a window, never shown, that says whose it is:
//
//     _VANTREL_AGENT     five CARDINALs: version of this property, process id, the hot key's keysym and modifiers, and
//                        the agent's Standing
//     _VANTREL_ASKED     a CARDINAL: the higher it is, the later this agent was last asked to show its inspector
//     WM_CLIENT_MACHINE  the machine that the process is on
//
// The X server destroys the window when its agent ends, however it ends, and tells those that wait for it. A press is
// passed on as a client message _VANTREL_SHOW, which only the client that has made the window receives. Agents with
// another hot key have nothing to do with each other.
#ifndef VANTREL_X11_AGENTS_H
#define VANTREL_X11_AGENTS_H

#include <xcb/xcb.h>

#include <cstdint>
#include <string>

#include "hot_key.h"

namespace x11 {

// How an agent stands to the hot key.
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

// Makes this process's window. The agent is trying.
Agents join_agents(xcb_connection_t* connection, const HotKey& hot_key);

// Tells the others how this agent stands.
void set_standing(Agents& agents, Standing standing);

// How the others that want the same key stand: has_it if one of them has it, or else trying if one of them is trying.
// From now on the server tells us when one of those that are there ends or tells us something else, as events that
// ends_another and changes_another know.
Standing look_at_others(const Agents& agents);

// Chooses the agent that a press is meant for: the one whose program has the window with the focus; if there is none,
// the one that was asked last; and if none was asked yet, this one. Remembers it as the one that was asked last, passes
// the press on if it is not this one, and returns whether it is.
bool take_or_pass_on(const Agents& agents);

// Whether an event is a press that another agent has passed on to this one.
bool is_passed_on(const Agents& agents, const xcb_generic_event_t& event);

// Whether an event says that another agent has ended, or stands otherwise now.
bool ends_another(const xcb_generic_event_t& event);
bool changes_another(const Agents& agents, const xcb_generic_event_t& event);

}  // namespace x11

#endif
