#pragma once
// The boxes that stop a handler until the user answers. A face, or a test, answers them through
// these slots; without one, an input box is cancelled and a message box is closed with OK.

#include <functional>
#include <string>

enum class Answer { Ok, Cancel, Yes, No };

/// The text entered, or an empty one if the box was cancelled.
extern std::function<std::string(const std::string& prompt, const std::string& title,
                                 const std::string& offered)>
    InputBox;

/// The button pressed. `style` tells buttons and icon as the classic sum: 1 adds Cancel, 3 asks Yes,
/// No, Cancel; 32 is a question, 64 an information.
extern std::function<Answer(const std::string& text, int style, const std::string& title)> MsgBox;

/// Puts the answers of a program without a face back.
void ResetDialogs();
