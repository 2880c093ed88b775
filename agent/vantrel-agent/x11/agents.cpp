#include "agents.h"

#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "connection.h"

namespace x11 {

namespace {

constexpr uint32_t kVersion = 1;

// What _VANTREL_AGENT holds.
struct AgentProperty {
    uint32_t version;
    uint32_t pid;
    uint32_t keysym;
    uint32_t modifiers;
    Standing standing;
};
constexpr uint32_t kAgentPropertyLength = sizeof(AgentProperty) / sizeof(uint32_t);

// An agent as the others see it.
struct Agent {
    xcb_window_t window;
    uint32_t pid;
    std::string machine;
    uint32_t asked;
    Standing standing;
};

// A function below that asks about many windows first sends all its requests and then reads all the answers, so that it
// waits for the server once and not once for each window.

xcb_intern_atom_cookie_t ask_for_atom(xcb_connection_t* connection, std::string_view name) {
    return xcb::intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.data());
}

xcb_atom_t atom_of(xcb_connection_t* connection, xcb_intern_atom_cookie_t request) {
    const Owned<xcb_intern_atom_reply_t> reply(xcb::intern_atom_reply(connection, request, NULL));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

// `length` in units of four bytes.
xcb_get_property_cookie_t ask_for_property(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property,
                                           xcb_atom_t type, uint32_t length) {
    return xcb::get_property(connection, 0, window, property, type, 0, length);
}

// The value as bytes. Empty if there is no such property or no such window.
std::string value_of(xcb_connection_t* connection, xcb_get_property_cookie_t request) {
    const Owned<xcb_get_property_reply_t> reply(xcb::get_property_reply(connection, request, NULL));
    if (!reply) {
        return "";
    }
    return {static_cast<const char*>(xcb::get_property_value(reply.get())),
            static_cast<size_t>(xcb::get_property_value_length(reply.get()))};
}

// A CARDINAL; 0 if there is none.
uint32_t number_of(const std::string& value) {
    uint32_t number = 0;
    if (value.size() == sizeof number) {
        memcpy(&number, value.data(), sizeof number);
    }
    return number;
}

constexpr uint32_t kMachineLength = HOST_NAME_MAX / 4 + 1;

std::string own_machine() {
    char name[HOST_NAME_MAX + 1] = "";
    gethostname(name, sizeof name - 1);
    return name;
}

// Reads the agents' properties of windows, and drops the windows that are not those of agents with our hot key.
void read_agents(const Agents& agents, std::vector<Agent>& windows) {
    std::vector<xcb_get_property_cookie_t> requests;
    requests.reserve(windows.size());
    for (const Agent& agent : windows) {
        requests.push_back(ask_for_property(agents.connection, agent.window, agents.atoms.agent, XCB_ATOM_CARDINAL,
                                            kAgentPropertyLength));
    }
    std::vector<Agent> found;
    for (size_t i = 0; i < windows.size(); ++i) {
        const std::string value = value_of(agents.connection, requests[i]);
        AgentProperty property;
        if (value.size() != sizeof property) {
            continue;
        }
        memcpy(&property, value.data(), sizeof property);
        if (property.version == kVersion && property.keysym == agents.hot_key.keysym &&
            property.modifiers == agents.hot_key.modifiers) {
            found.push_back({windows[i].window, property.pid, "", 0, property.standing});
        }
    }
    windows = std::move(found);
}

// All agents with our hot key, this one among them.
std::vector<Agent> all_agents(const Agents& agents) {
    xcb_connection_t* x = agents.connection;
    const Owned<xcb_query_tree_reply_t> tree(xcb::query_tree_reply(x, xcb::query_tree(x, agents.root), NULL));
    std::vector<Agent> windows;
    if (tree) {
        const xcb_window_t* children = xcb::query_tree_children(tree.get());
        for (size_t i = 0; i < tree->children_len; ++i) {
            windows.push_back({children[i], 0, "", 0, Standing::has_not});
        }
    }
    read_agents(agents, windows);
    return windows;
}

// Adds the machine and the time of asking, which all_agents leaves out.
void add_details(const Agents& agents, std::vector<Agent>& found) {
    xcb_connection_t* x = agents.connection;
    std::vector<xcb_get_property_cookie_t> machines;
    std::vector<xcb_get_property_cookie_t> asked;
    for (const Agent& agent : found) {
        machines.push_back(
            ask_for_property(x, agent.window, XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, kMachineLength));
        asked.push_back(ask_for_property(x, agent.window, agents.atoms.asked, XCB_ATOM_CARDINAL, 1));
    }
    for (size_t i = 0; i < found.size(); ++i) {
        found[i].machine = value_of(x, machines[i]);
        found[i].asked = number_of(value_of(x, asked[i]));
    }
}

// The window that has the focus. Where the focus follows the pointer, that is the innermost window under the pointer.
xcb_window_t focused_window(xcb_connection_t* x) {
    const Owned<xcb_get_input_focus_reply_t> focus(xcb::get_input_focus_reply(x, xcb::get_input_focus(x), NULL));
    if (!focus || focus->focus == XCB_INPUT_FOCUS_NONE) {
        return XCB_NONE;
    }
    if (focus->focus != XCB_INPUT_FOCUS_POINTER_ROOT) {
        return focus->focus;
    }
    for (const xcb_window_t root : root_windows(x)) {
        xcb_window_t at = root;
        while (true) {
            const Owned<xcb_query_pointer_reply_t> pointer(
                xcb::query_pointer_reply(x, xcb::query_pointer(x, at), NULL));
            if (!pointer || pointer->same_screen == 0) {
                break;
            }
            if (pointer->child == XCB_NONE) {
                return at;
            }
            at = pointer->child;
        }
    }
    return XCB_NONE;
}

// The process that a window belongs to, as _NET_WM_PID and WM_CLIENT_MACHINE say.
struct Owner {
    uint32_t pid;
    std::string machine;
};

// Asks the window and then, while there is no answer, the windows around it. Process 0 if none of them says.
Owner owner_of(const Agents& agents, xcb_window_t window) {
    xcb_connection_t* x = agents.connection;
    while (window != XCB_NONE) {
        const auto pid_request = ask_for_property(x, window, agents.atoms.pid, XCB_ATOM_CARDINAL, 1);
        const auto machine_request =
            ask_for_property(x, window, XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, kMachineLength);
        const auto tree_request = xcb::query_tree(x, window);
        const uint32_t pid = number_of(value_of(x, pid_request));
        const std::string machine = value_of(x, machine_request);
        const Owned<xcb_query_tree_reply_t> tree(xcb::query_tree_reply(x, tree_request, NULL));
        if (pid != 0) {
            return {pid, machine};
        }
        window = tree ? tree->parent : xcb_window_t{XCB_NONE};
    }
    return {0, ""};
}

void announce(const Agents& agents) {
    const AgentProperty property{kVersion, static_cast<uint32_t>(getpid()), agents.hot_key.keysym,
                                 agents.hot_key.modifiers, agents.standing};
    xcb::change_property(agents.connection, XCB_PROP_MODE_REPLACE, agents.own, agents.atoms.agent, XCB_ATOM_CARDINAL,
                         32, kAgentPropertyLength, &property);
    xcb::flush(agents.connection);
}

void pass_on(const Agents& agents, xcb_window_t window) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = agents.atoms.show;
    // With an empty mask an event goes to the client that has made the window, and to nobody else.
    xcb::send_event(agents.connection, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&message));
}

}  // namespace

Agents join_agents(xcb_connection_t* connection, const HotKey& hot_key) {
    const auto agent = ask_for_atom(connection, "_VANTREL_AGENT");
    const auto asked = ask_for_atom(connection, "_VANTREL_ASKED");
    const auto show = ask_for_atom(connection, "_VANTREL_SHOW");
    const auto pid = ask_for_atom(connection, "_NET_WM_PID");
    Agents agents{
        connection,
        hot_key,
        own_machine(),
        {atom_of(connection, agent), atom_of(connection, asked), atom_of(connection, show), atom_of(connection, pid)},
        root_windows(connection).front(),
        xcb::generate_id(connection),
        Standing::trying};
    const uint32_t no_window_manager = 1;
    xcb::create_window(connection, XCB_COPY_FROM_PARENT, agents.own, agents.root, -1, -1, 1, 1, 0,
                       XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &no_window_manager);
    xcb::change_property(connection, XCB_PROP_MODE_REPLACE, agents.own, XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, 8,
                         static_cast<uint32_t>(agents.machine.size()), agents.machine.data());
    announce(agents);
    return agents;
}

void set_standing(Agents& agents, Standing standing) {
    if (agents.standing != standing) {
        agents.standing = standing;
        announce(agents);
    }
}

Standing look_at_others(const Agents& agents) {
    std::vector<Agent> others = all_agents(agents);
    std::erase_if(others, [&](const Agent& agent) { return agent.window == agents.own; });
    for (const Agent& agent : others) {
        const uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb::change_window_attributes(agents.connection, agent.window, XCB_CW_EVENT_MASK, &events);
    }
    // The standings are read again, because the server has sent no event for what changed before it took these
    // requests.
    read_agents(agents, others);
    const auto one_stands = [&](Standing standing) {
        return std::any_of(others.begin(), others.end(),
                           [&](const Agent& agent) { return agent.standing == standing; });
    };
    return one_stands(Standing::has_it)   ? Standing::has_it
           : one_stands(Standing::trying) ? Standing::trying
                                          : Standing::has_not;
}

bool take_or_pass_on(const Agents& agents) {
    std::vector<Agent> all = all_agents(agents);
    add_details(agents, all);
    const Owner focused = all.size() > 1 ? owner_of(agents, focused_window(agents.connection)) : Owner{0, ""};
    // The best candidate comes last in this order: by the focus, then by when it was asked, then by being this one.
    const auto merit = [&](const Agent& agent) {
        const bool has_focus = agent.pid == focused.pid && agent.machine == focused.machine;
        return std::tuple(has_focus, agent.asked, agent.window == agents.own);
    };
    const auto best =
        std::max_element(all.begin(), all.end(), [&](const Agent& a, const Agent& b) { return merit(a) < merit(b); });
    if (best == all.end()) {
        return true;
    }
    uint32_t last_asked = 0;
    for (const Agent& agent : all) {
        last_asked = std::max(last_asked, agent.asked);
    }
    const uint32_t asked = last_asked + 1;
    xcb::change_property(agents.connection, XCB_PROP_MODE_REPLACE, best->window, agents.atoms.asked, XCB_ATOM_CARDINAL,
                         32, 1, &asked);
    if (best->window != agents.own) {
        pass_on(agents, best->window);
    }
    xcb::flush(agents.connection);
    return best->window == agents.own;
}

bool is_passed_on(const Agents& agents, const xcb_generic_event_t& event) {
    const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
    return kind_of(event) == XCB_CLIENT_MESSAGE && message.type == agents.atoms.show && message.window == agents.own;
}

bool ends_another(const xcb_generic_event_t& event) {
    return kind_of(event) == XCB_DESTROY_NOTIFY;
}

bool changes_another(const Agents& agents, const xcb_generic_event_t& event) {
    return kind_of(event) == XCB_PROPERTY_NOTIFY &&
           reinterpret_cast<const xcb_property_notify_event_t&>(event).atom == agents.atoms.agent;
}

}  // namespace x11
