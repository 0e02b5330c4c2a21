// Keys and clicks in the controls of a form, as a user gives them.
#pragma once

#include <string>

#include "script/session.h"

namespace trelvo {

// The character of a Windows-1252 code, or a control code, goes through the box's handler and then into its text.
void press_key(Session& session, Control& control, int code);
void press_key_down(Session& session, Control& control, int code);

// Empties the box and sends each character as a key.
void type_text(Session& session, TextBox& box, const std::string& text);
void type_text(Session& session, RichTextBox& box, const std::string& text);

// Presses a button or an option, clicks any other control.
void click_control(Session& session, Control& control);

}  // namespace trelvo
