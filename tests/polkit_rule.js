// SPDX-License-Identifier: GPL-3.0-or-later
// Asks packaging/50-pairdesk.rules about good and bad requests: node polkit_rule.js
"use strict";
const assert = require("assert");
const rules = [];
global.polkit = { Result: { YES: "yes" }, addRule: (rule) => rules.push(rule) };
const rulesFile = __dirname + "/../packaging/50-pairdesk.rules";
require("vm").runInThisContext(require("fs").readFileSync(rulesFile, "utf8"));

// Each row is a good request but for one thing, which is given several values.
const good = { id: "org.freedesktop.systemd1.manage-units", unit: "bluetooth.service", verb: "start",
    local: true, active: true, groups: ["users", "bluetooth"] };
for (const [expected, key, ...values] of [
    ["yes", "verb", "start", "stop"],
    ["yes", "groups", ["sudo"], ["wheel"], ["netdev"]],
    [undefined, "verb", "restart", "reload", "enable", "mask", "kill", "set-property", "started", "", void 0],
    [undefined, "unit", "ssh.service", "bluetooth", "a-bluetooth.service", "bluetooth.service.d", "", void 0],
    [undefined, "id", "org.freedesktop.systemd1.manage-unit-files", "org.freedesktop.login1.power-off"],
    [undefined, "local", false], [undefined, "active", false],
    [undefined, "groups", [], ["users", "lp", "audio", "adm"], ["bluetoothd"]],
]) for (const value of values) {
    const { id, unit, verb, groups, ...user } = { ...good, [key]: value };
    const action = { id, lookup: (detail) => ({ unit, verb })[detail] };
    user.isInGroup = (group) => groups.includes(group);
    assert.deepStrictEqual(rules.map((rule) => rule(action, user)), [expected], `${key} ${value}`);
}
