// The functions of libxcb that we call. They are not linked but looked up when the first connection is made, so that a
// VM can start under the agent on a machine without X libraries. xcb::connect is libxcb's xcb_connect, and so on; types
// and constants come from its headers.
#ifndef VANTREL_X11_XCB_H
#define VANTREL_X11_XCB_H

#include <xcb/xcb.h>

// clang-format off
#define VANTREL_XCB_FUNCTIONS(F) \
    F(change_property) F(change_window_attributes) F(connect) F(connection_has_error) F(create_window) F(disconnect) \
    F(flush) F(generate_id) F(get_file_descriptor) F(get_input_focus) F(get_input_focus_reply) F(get_keyboard_mapping) \
    F(get_keyboard_mapping_keysyms) F(get_keyboard_mapping_reply) F(get_modifier_mapping) \
    F(get_modifier_mapping_keycodes) F(get_modifier_mapping_reply) F(get_property) F(get_property_reply) \
    F(get_property_value) F(get_property_value_length) F(get_setup) F(grab_key_checked) F(intern_atom) \
    F(intern_atom_reply) F(poll_for_queued_event) F(query_keymap) F(query_keymap_reply) F(query_pointer) \
    F(query_pointer_reply) F(query_tree) F(query_tree_children) F(query_tree_reply) F(request_check) F(screen_next) \
    F(send_event) F(setup_roots_iterator) F(ungrab_key) F(wait_for_event)
// clang-format on

namespace xcb {

#define VANTREL_XCB_POINTER(name) \
    inline decltype(&xcb_##name) name = nullptr;  // NOLINT(bugprone-macro-parentheses): a name
VANTREL_XCB_FUNCTIONS(VANTREL_XCB_POINTER)
#undef VANTREL_XCB_POINTER

// Looks all of them up when it is called for the first time. None may be called before it has returned true. May be
// called on any thread.
bool load();

}  // namespace xcb

#endif
