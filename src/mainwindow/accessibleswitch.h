// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class ClickableLabel;

/** Presents clickable labels to assistive technology as check boxes; toggling one clicks it. */
void installAccessibleSwitchFactory();

/** Tells assistive technology whether the switch is on. */
void setAccessibleState(ClickableLabel *label, bool on);
