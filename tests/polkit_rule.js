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

// A request that is granted, but for what "change" says.
function answer(change) {
    const request = {
        id: "org.freedesktop.systemd1.manage-units",
        details: { unit: "bluetooth.service", verb: "start" },
        local: true,
        active: true,
        groups: ["users", "bluetooth"],
        ...change,
    };
    const action = { id: request.id, lookup: (key) => request.details[key] };
    const isInGroup = (group) => request.groups.includes(group);
    return rules[0](action, { user: "somebody", local: request.local, active: request.active, isInGroup });
}

function details(unit, verb) {
    return { details: { unit, verb } };
}

const granted = [
    {},
    details("bluetooth.service", "stop"),
    ...["sudo", "wheel", "netdev"].map((group) => ({ groups: [group] })),
];

const silent = [
    ...["restart", "try-restart", "reload", "reload-or-restart", "enable", "disable", "mask", "kill",
        "reset-failed", "set-property", "started", "", undefined].map((verb) => details("bluetooth.service", verb)),
    ...["ssh.service", "bluetooth", "bluetooth.target", "bluetooth-mesh.service", "a-bluetooth.service",
        "bluetooth.service.d", "", undefined].map((unit) => details(unit, "start")),
    { details: {} },
    ...["org.freedesktop.systemd1.manage-unit-files", "org.freedesktop.systemd1.reload-daemon",
        "org.freedesktop.login1.power-off", "org.freedesktop.policykit.exec"].map((id) => ({ id })),
    { local: false },
    { active: false },
    { local: false, active: false },
    ...[[], ["users"], ["lp", "audio", "adm"], ["bluetoothd"]].map((groups) => ({ groups })),
];

for (const change of granted)
    assert.strictEqual(answer(change), "yes", JSON.stringify(change));
for (const change of silent)
    assert.strictEqual(answer(change), undefined, JSON.stringify(change));
