'use strict';
// The player reads button parameters by its own list of the 50 fields: it must name the
// same fields, in the same order and of the same kinds, as the designer's field table.
const test = require('node:test');
const assert = require('node:assert');
const fs = require('fs');
const path = require('path');

const source = path.join(__dirname, '..', '..');

test('the player reads the fields of the designer\'s button record, in its order', () => {
    const cpp = fs.readFileSync(path.join(source, 'src/model/buttonrecord.cpp'), 'utf8');
    const table = cpp.slice(cpp.indexOf('kButtonFields = '));
    const designer = [...table.matchAll(/Field\("(\w+)", K::(\w+), /g)].map((m) => m[1] + ':' + m[2]);

    const js = fs.readFileSync(path.join(source, 'src/player/orvelin-player.js'), 'utf8');
    const list = /var FIELDS = \(([^)]*)\)\.split/.exec(js);
    assert.ok(list, 'the player keeps its field list in FIELDS');
    const player = list[1].replace(/'\s*\+\s*'/g, '').replace(/'/g, '').trim().split(/\s+/);

    assert.strictEqual(designer.length, 50);
    assert.deepStrictEqual(player, designer);
});
