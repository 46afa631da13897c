// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/** What is left of a log without the functions in tests/trace-contract: nothing when it keeps to that. */
QString violations(QString log);
