#pragma once
// The dialog "Save and Create Patterns": how its boxes reach the hull's tables, and its settings.

/// The menu item: brings a pitched hull back, fills the boxes from the tables and shows the dialog.
/// Afterwards the file list is read anew.
void Dummy4_Click();

/// The window is made: places it, reads the settings "hull.dat", if there are any, into the check
/// boxes and the export path, which is the open folder if it is empty then, and shows the window.
void Form3_Load();
/// The window goes: writes "hull.dat" anew. Nothing for a window that was not made, so that settings
/// never read are never lost.
void Form3_Unload();

/// Puts the chosen file with its folder into the file name. The file isn't read.
void Form3_File1_Click();
void Form3_Dir1_Change();
void Form3_Drive1_Change();

void Form3_Command2_Click();  ///< Cancel: hides the window
void Form3_Command3_Click();  ///< Now: today's date
/// Enter in the file name saves.
void Form3_Text1_KeyPress(int key);
/// Esc cancels.
void Form3_KeyDown(int& key);
/// The keyboard goes to the Save button.
void Form3_GotFocus();

/// File name: what stands before the first dot, or the first eight letters of a name without a dot,
/// and ".tvh". Sets HullFileName.
void Form3_Text1_Change();

/// The info boxes write to HullDesigner, HullInfo, HullContact and HullDate as they change.
void Form3_Text2_Change();
void Form3_Text3_Change();
void Form3_Text4_Change();
void Form3_Text5_Change();

/// Export path: sets ExportPath, with a separator at its end.
void Form3_Text6_Change();

/// FrameZ(index) is the magnitude of the box's number.
void FrameText_Change(int index);

/// Reads "hull.dat", if it exists, into the check boxes and the export path.
void ReadSaveSettings();

/// Writes "hull.dat" anew from them.
void WriteSaveSettings();
