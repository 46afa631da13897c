// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/** The fixed files of the program; other parts of the desktop know them by these names. */
namespace paths {
constexpr char pidFile[] = "/tmp/.btdpid";
constexpr char debugLogFile[] = "/tmp/pairdesk.log";
constexpr char styleSheet[] = "/tmp/.config/default.css";
constexpr char audioSample[] = "/tmp/sample.wav";
}
