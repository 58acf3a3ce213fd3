#pragma once
// The boxes that ask and tell, as Qt dialogs over the active window.

/// Fills the slots InputBox and MsgBox.
void ShowDialogsWithQt();
