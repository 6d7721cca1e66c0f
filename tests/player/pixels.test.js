'use strict';
// The player draws what the design window draws: a project using every image placement,
// borders on and off, a transparent and a hidden button, multi-line and placed labels,
// bold and italic, compared in each state with `orvelin-cli render` of the same project.
const { test } = require('node:test');
const assert = require('node:assert');
const fs = require('fs');
const path = require('path');
const kit = require('./pagekit');

const project = path.join(__dirname, 'data', 'varied.orv');
const TOLERANCE = 48; // levels per channel

test('every state matches the design window\'s picture', async () => {
    const dir = kit.tempDir('pixels');
    const browser = await kit.launch();
    try {
        const url = kit.makePage([project], dir);
        const page = await browser.newPage();
        await page.goto(url);
        await page.evaluate(() => document.getElementsByName('varied')[0].orvelinPlayer.ready);
        const clip = await page.locator('[name="varied"]').boundingBox();
        const results = [];
        for (const state of ['UP', 'OVER', 'DOWN']) {
            const rendered = path.join(dir, state + '.png');
            kit.cli(['render', project, '--state', state, '-o', rendered]);
            // The designer shows hidden buttons; the page is asked to show them too.
            await page.evaluate((s) => {
                const player = document.getElementsByName('varied')[0].orvelinPlayer;
                player.buttons.forEach((b) => {
                    player.setHidden(b.number, false);
                    player.setState(b.number, s);
                });
            }, state);
            const shot = await page.screenshot({ clip });
            const diff = await kit.comparePngs(page, fs.readFileSync(rendered), shot, TOLERANCE);
            assert.ok(diff.total, 'the page and the render differ in size: ' + diff.size);
            const share = diff.close / diff.total;
            results.push(state + ' ' + (100 * share).toFixed(2) + '%');
            assert.ok(share >= 0.97, `${state}: ${(100 * share).toFixed(2)}% of the pixels close`);
        }
        console.log('pixels within ' + TOLERANCE + ' levels: ' + results.join(', '));
    } finally {
        await browser.close();
        fs.rmSync(dir, { recursive: true, force: true });
    }
});
