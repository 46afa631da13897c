// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/user.h"

struct Scenario {
    QString title;
    QStringList lines; // each behind its number
};

/** All scenarios of a file, outlines once for each of their examples. */
QList<Scenario> readScenarios(const QString &file);
/** The steps of each line, and behind them "-> EFFECTS": what all of them together change. */
QList<Step> stepsOf(const Scenario &scenario, const QString &file);
