#pragma once
// What must hold after every act, whatever the user did.

/// Notes a fault for a table or a number without a value, an index outside of its range, files that are
/// still held back, a window that still shows the hourglass.
void CheckState();
