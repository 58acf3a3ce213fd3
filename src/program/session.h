#pragma once
// A session with the main window: how it starts, saves itself every half minute, and ends.

/// The window's load: the open dialog is loaded and hidden, all tables and controls take their start
/// values, "default.tvh" is opened if the working folder has one, the window is shown, and nothing
/// goes on until the about text is dismissed. The slots must be bound before (ResetProgram).
void Form_Load();

/// The clock's tick: writes the hull as it stands, pitched or not, to "default.tvh", whatever
/// file it came from. Panel 1 tells it meanwhile.
void Timer1_Timer();

/// The menu item that ends the program: the same as closing the window.
void dummy6_Click();

/// Somebody wants the window closed: brings a pitched hull back, offers to save it, and sets `refuse`
/// on Cancel. On Yes and No the other windows are unloaded.
void Form_QueryUnload(bool& refuse);
