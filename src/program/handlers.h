#pragma once
// Which handler answers which event of which control.

/// Fills the slots of all controls.
void BindHandlers();
