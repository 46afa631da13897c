// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/** Runs the program, from the test for another instance to the exit status, which it returns. */
int runApplication(int argc, char **argv);
