// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/application.h"

int main(int argc, char **argv) { return runApplication(argc, argv); }
