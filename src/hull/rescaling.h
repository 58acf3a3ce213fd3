#pragma once
// Rescaling: the four items of the menu multiply the offsets so that the hull reaches a size that
// the user enters. Its sign doesn't count, and 0, a cancelled box or a word changes nothing.

void dummy12_Click();  ///< length overall: X, Y and Z
void dummy18_Click();  ///< maximum beam, told and entered as the half beam: X
void dummy19_Click();  ///< maximum height: Y
void dummy88_Click();  ///< maximum length: Z
