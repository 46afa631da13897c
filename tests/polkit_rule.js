// SPDX-License-Identifier: GPL-3.0-or-later
// Asks packaging/50-pairdesk.rules about good and bad requests: node polkit_rule.js
"use strict";
const assert = require("assert");
const fs = require("fs");
const path = require("path");
const vm = require("vm");

const rules = [];
const polkit = { Result: { YES: "yes" }, addRule: (rule) => rules.push(rule) };
const file = path.join(__dirname, "..", "packaging", "50-pairdesk.rules");
vm.runInNewContext(fs.readFileSync(file, "utf8"), { polkit }, { filename: file });
assert.strictEqual(rules.length, 1);

const good = { id: "org.freedesktop.systemd1.manage-units", unit: "bluetooth.service", verb: "start",
    local: true, active: true, groups: ["users", "bluetooth"] };

// What is asked with one thing different each time.
function ask(expected, key, values) {
    for (const value of values) {
        const { id, unit, verb, local, active, groups } = { ...good, [key]: value };
        const action = { id, lookup: (detail) => ({ unit, verb })[detail] };
        const user = { user: "somebody", local, active, isInGroup: (group) => groups.includes(group) };
        assert.strictEqual(rules[0](action, user), expected, key + " " + value);
    }
}

ask("yes", "verb", ["start", "stop"]);
ask("yes", "groups", [["sudo"], ["wheel"], ["netdev"]]);
ask(undefined, "verb", ["restart", "try-restart", "reload", "reload-or-restart", "enable", "disable", "mask", "kill",
    "reset-failed", "set-property", "started", "", undefined]);
ask(undefined, "unit", ["ssh.service", "bluetooth", "bluetooth.target", "bluetooth-mesh.service",
    "a-bluetooth.service", "bluetooth.service.d", "", undefined]);
ask(undefined, "id", ["org.freedesktop.systemd1.manage-unit-files", "org.freedesktop.systemd1.reload-daemon",
    "org.freedesktop.login1.power-off", "org.freedesktop.policykit.exec"]);
ask(undefined, "local", [false]);
ask(undefined, "active", [false]);
ask(undefined, "groups", [[], ["users"], ["lp", "audio", "adm"], ["bluetoothd"]]);
