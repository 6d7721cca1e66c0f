'use strict';
// Action programs in Debian's chromium, on pages opened from disk: every command and its
// timing, the events that run them (pointer, keyboard, touch) and the page's functions.
const { test } = require('node:test');
const assert = require('node:assert');
const fs = require('fs');
const path = require('path');
const kit = require('./pagekit');

const bar = path.join(__dirname, 'data', 'bar.orv');
const s = kit.session('programs');

/** Puts program texts into the applet code: `buttons` maps a button number to its
 *  [UP, OVER, DOWN] programs, `applet` holds [OVER, DOWN, OUT, Start]. */
function withPrograms(buttons, applet) {
    return (code) => code.replace(/(<Param Name="(\w+)" value=")([^"]*)/g, (all, head, name, value) => {
        const f = value.split('|');
        if (name === 'p' && applet)
            [f[9], f[10], f[11], f[15]] = applet;
        else if (buttons[name])
            [f[47], f[48], f[49]] = buttons[name];
        return head + f.join('|');
    });
}

const open = (url, options) => kit.open(s.browser, url, options, () => { window.log = []; });

const center = (page, n) => page.evaluate((k) => {
    const r = document.getElementsByName('bar')[0].children[k].getBoundingClientRect();
    return { x: r.x + 4, y: r.y + 4 };
}, n);

test('a program hides, waits, shows, moves, relabels and recolours in order and on time', async () => {
    const program = '7 0 log.push(performance.now())&y01throw&nbsp0;2 2;6 500.5;1 2;' +
        '3 3 5 -999 -999 20;4 4 1 New&nbsplabel;5 1 1 123456;bad line;1 99;4 1 7 x;' +
        '7 0 log.push(document.title)';
    const url = kit.makePage([bar], s.dir, {
        name: 'commands.htm', edit: withPrograms({ 4: ['', '', program + ';'] }),
    });
    const { context, page, messages } = await open(url);
    // Every change of a button element's style, with its time.
    await page.evaluate(() => {
        window.changes = [];
        new MutationObserver((list) => list.forEach((m) => changes.push(
            [performance.now(), m.target.getAttribute('aria-label'), m.target.style.cssText])))
            .observe(document.getElementsByName('bar')[0], { attributes: true, subtree: true });
    });
    const four = await center(page, 4);
    await page.mouse.click(four.x, four.y);
    // Other events go on while the program waits: button 5 shows OVER at once.
    const five = await center(page, 5);
    await page.mouse.move(five.x, five.y);
    assert.strictEqual(await kit.pixelAt(page, five.x, five.y), '#00ffff');
    assert.strictEqual(await page.evaluate(() => log.length), 1);
    await page.waitForFunction(() => log.length === 2);
    const start = await page.evaluate(() => log[0]);
    const changes = (await page.evaluate(() => changes)).map(([t, label, css]) =>
        [Math.round(t - start), label, css]);
    const hide = changes.find((c) => c[1] === 'News' && /display: none/.test(c[2]));
    const show = changes.find((c) => c[1] === 'News' && !/display/.test(c[2]));
    const move = changes.find((c) => c[1] === 'Frame');
    const relabel = changes.find((c) => c[1] === 'New label');
    assert.ok(hide[0] < 100, 'hidden at ' + hide[0]);
    assert.ok(show[0] >= 500 && show[0] < 600, 'shown at ' + show[0]);
    assert.ok(move[0] >= show[0] && relabel[0] >= move[0]);
    assert.match(move[2], /left: 5px; top: 10px; width: 90px; height: 20px/);
    // Button 3 is drawn at its new place over button 1, whose UP colour changed; its
    // old place shows the applet.
    const one = await center(page, 1);
    assert.deepStrictEqual([await kit.pixelAt(page, one.x, one.y + 26),
                            await kit.pixelAt(page, one.x, one.y + 6),
                            await kit.pixelAt(page, one.x + 200, one.y + 6)],
                           ['#123456', '#ffff00', '#202020']);
    const warnings = messages.filter((m) => /^warning: /.test(m));
    assert.strictEqual(warnings.length, 4, messages.join('\n'));
    assert.match(warnings.join('\n'),
                 /JavaScript.*failed[^]*"bad line" skipped[^]*no button 99[^]*no state 7/);
    await context.close();
});

test('the applet programs and the button programs run on pointer, keyboard and touch', async () => {
    const js = (word) => `7 0 log.push('${word}');`;
    const url = kit.makePage([bar], s.dir, {
        name: 'events.htm',
        edit: withPrograms({ 4: [js('b-up'), js('b-over'), js('b-down')] },
                           [js('over'), js('down'), js('out'), js('start')]),
    });
    const { context, page, messages } = await open(url, { hasTouch: true });
    const box = await page.locator('[name="bar"]').boundingBox();
    await page.mouse.move(box.x + 2, box.y + 2);
    await page.mouse.down();
    await page.mouse.up();
    await page.mouse.move(box.x + 2, box.y + 100);
    for (let i = 0; i < 4; i++)
        await page.keyboard.press('Tab'); // to "Pick me"

    await page.keyboard.press('Space');
    await page.evaluate(() => document.activeElement.blur());
    assert.deepStrictEqual(await page.evaluate(() => log.splice(0)),
                           ['start', 'over', 'down', 'out', 'over', 'b-over', 'b-down', 'down',
                            'out', 'b-up']);
    // A click's focus is no keyboard focus: the pointer leaving is leaving.
    const four = await center(page, 4);
    await page.mouse.click(four.x, four.y);
    await page.mouse.move(four.x, four.y + 100);
    assert.deepStrictEqual(await page.evaluate(() => log.splice(0)),
                           ['over', 'b-over', 'down', 'b-down', 'b-up', 'out']);
    await page.touchscreen.tap(four.x, four.y);
    const touched = await page.evaluate(() => log);
    assert.ok(['over', 'b-over', 'down', 'b-down'].every((w) => touched.includes(w)), touched);
    assert.deepStrictEqual(messages, []);
    await context.close();
});

test('page functions drive a bar by a name that is no identifier', async () => {
    const project = path.join(s.dir, 'A<B.orv');
    fs.copyFileSync(bar, project);
    const url = kit.makePage([project], s.dir, {
        name: 'jscaller.htm',
        edit: withPrograms({ 1: ['', '', "7 0 log.push('pressed');"] }),
        body: '<script>log.push(InitJSCaller(), OrvelinHide("A<B", 2), OrvelinShow("nobar", 2));' +
            'OrvelinMove("A<B", 3, 5, null, null, 20); OrvelinSetLabel("A<B", 4, 1, \'Hi; "you"\');' +
            'OrvelinSetColor("A<B", 1, 1, "123456"); OrvelinPress("A<B", 1);' +
            'OrvelinRun("A<B", "7 0 log.push(2)&y01;")</script>',
    });
    const { context, page, messages } = await open(url);
    assert.deepStrictEqual(await page.evaluate(() => log), [true, true, false, 'pressed', 2]);
    const state = await page.evaluate(() => [...document.getElementsByName('A<B')[0].children]
        .slice(1).map((e) => [e.getAttribute('aria-label'), e.style.display, e.style.left]));
    assert.deepStrictEqual(state.slice(1, 4), [['News', 'none', '100px'], ['Frame', '', '5px'],
                                               ['Hi; "you"', '', '290px']]);
    const box = await page.locator('[name="A<B"]').boundingBox();
    assert.strictEqual(await kit.pixelAt(page, box.x + 50, box.y + 45), '#123456');
    assert.deepStrictEqual(messages, []);
    await context.close();
});
