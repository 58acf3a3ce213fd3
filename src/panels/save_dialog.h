#pragma once
// The dialog "Save and Create Patterns": how its boxes reach the hull's tables, and its settings.

/// The menu item: brings a pitched hull back, fills the boxes from the tables and shows the dialog.
void Dummy4_Click();

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

/// Puts the working folder into an empty export path.
void OfferExportPath();

/// Writes "hull.dat" anew from them.
void WriteSaveSettings();
