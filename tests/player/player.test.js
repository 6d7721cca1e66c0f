'use strict';
// The player in Debian's chromium, on pages opened from disk: states, radio buttons,
// links and targets, the keyboard, touch, two applets, late applets and spoiled parameters.
const { test } = require('node:test');
const assert = require('node:assert');
const fs = require('fs');
const path = require('path');
const kit = require('./pagekit');

const bar = path.join(__dirname, 'data', 'bar.orv');
const UP = '#ffff00', OVER = '#00ffff', DOWN = '#ff0000';
const s = kit.session('player');
fs.writeFileSync(path.join(s.dir, 'second.htm'), '<!DOCTYPE html><title>Second</title>');

const open = (url, options) => kit.open(s.browser, url, options);

/** Page position of the middle of a button's top-left corner area (clear of the label). */
async function spot(page, appletName, n) {
    const box = await page.locator(`[name="${appletName}"]`).first().boundingBox();
    return { x: box.x + 5 + (n - 1) * 95 + 4, y: box.y + 10 + 4 };
}

test('hover, press and release show each state; a tap on a radio button keeps it down', async () => {
    const url = kit.makePage([bar], s.dir, { name: 'push.htm' });
    const { context, page, messages } = await open(url, { hasTouch: true });
    const at = await spot(page, 'bar', 4);
    assert.strictEqual(await kit.pixelAt(page, at.x, at.y), UP);
    await page.mouse.move(at.x + 20, at.y + 10);
    assert.strictEqual(await kit.pixelAt(page, at.x, at.y), OVER);
    await page.mouse.down();
    assert.strictEqual(await kit.pixelAt(page, at.x, at.y), DOWN);
    await page.mouse.up();
    assert.strictEqual(await kit.pixelAt(page, at.x, at.y), OVER);
    await page.mouse.move(at.x, at.y + 60);
    assert.strictEqual(await kit.pixelAt(page, at.x, at.y), UP);
    assert.deepStrictEqual(messages, []);
    await context.close();

    // Behaviour 1: the pressed button stays down until another one is pressed.
    const radio = kit.makePage([path.join(__dirname, 'data', 'radio.orv')], s.dir,
                               { name: 'radio.htm' });
    const r = await open(radio, { hasTouch: true });
    const pick = await spot(r.page, 'radio', 4), also = await spot(r.page, 'radio', 5);
    await r.page.mouse.click(pick.x + 20, pick.y + 10);
    await r.page.mouse.move(pick.x, pick.y + 60);
    assert.strictEqual(await kit.pixelAt(r.page, pick.x, pick.y), DOWN);
    await r.page.touchscreen.tap(also.x + 20, also.y + 10);
    assert.strictEqual(await kit.pixelAt(r.page, also.x, also.y), DOWN);
    assert.strictEqual(await kit.pixelAt(r.page, pick.x, pick.y), UP);
    assert.deepStrictEqual(await r.page.evaluate(() => [...document.querySelectorAll('[role=button]')]
        .map((e) => e.getAttribute('aria-pressed'))), [null, 'true']);
    await r.context.close();
});

test('links open in their targets; Tab reaches the buttons by their labels; canvases are sharp',
     async () => {
    const url = kit.makePage([bar], s.dir, {
        name: 'links.htm',
        body: '<iframe name="side" src="about:blank"></iframe>\r\n',
    });
    // A high-density screen gets canvases at its own resolution.
    const { context, page } = await open(url, { deviceScaleFactor: 2 });
    assert.deepStrictEqual(await page.evaluate(() => {
        const c = document.querySelector('[name=bar] canvas');
        return [c.width, c.height, c.clientWidth, c.clientHeight];
    }), [960, 120, 480, 60]);
    const names = [];
    for (let i = 0; i < 5; i++) {
        await page.keyboard.press('Tab');
        names.push(await page.evaluate(() => document.activeElement.getAttribute('role') ||
            document.activeElement.tagName.toLowerCase() + ' ' +
            document.activeElement.getAttribute('aria-label')));
    }
    assert.deepStrictEqual(names, ['a Home', 'a News', 'a Frame', 'button', 'a Also']);
    assert.strictEqual(await page.getByRole('button', { name: 'Pick me' }).count(), 1);
    assert.strictEqual(await page.getByRole('link', { name: 'Home' }).getAttribute('title'),
                       'To the second ');

    const news = await spot(page, 'bar', 2), frame = await spot(page, 'bar', 3);
    const [popup] = await Promise.all([context.waitForEvent('page'), page.mouse.click(news.x, news.y)]);
    await popup.waitForLoadState();
    assert.match(popup.url(), /second\.htm$/);
    await page.mouse.click(frame.x, frame.y);
    await page.frame({ name: 'side' }).waitForURL(/second\.htm$/);
    // A "javascript:" link runs in the page, even with a target.
    await page.mouse.click((await spot(page, 'bar', 5)).x, news.y);
    await page.waitForFunction(() => document.title === 'ran');
    assert.strictEqual(context.pages().length, 2);

    await page.getByRole('link', { name: 'Home' }).focus();
    await Promise.all([page.waitForURL(/second\.htm$/), page.keyboard.press('Enter')]);
    await context.close();
});

test('two applets and a late one play; a spoiled parameter costs its own button only', async () => {
    const code = kit.cli(['html', bar]);
    const url = kit.makePage([bar, bar], s.dir, {
        name: 'two.htm',
        edit: (text, i) => i === 0 ? text : text.replace('name = "bar"', 'name = "Second"')
            .replace(/(<Param Name="2" value=")[^"]*/, '$1spoiled|')
            // An empty colour (the generator's gap) shows the applet background.
            .replace(/(<Param Name="3" value="(?:[^|]*\|){16})FFFF00/, '$1'),
    });
    const { context, page, messages } = await open(url);
    await page.evaluate((c) => document.body.insertAdjacentHTML('beforeend',
        c.replace('name = "bar"', 'name = "Late"')), code);
    await page.waitForFunction(() => document.getElementsByName('Late').length === 1);

    const buttons = (name) => page.evaluate((n) => document.getElementsByName(n)[0]
        .querySelectorAll('a, [role=button]').length, name);
    assert.deepStrictEqual([await buttons('bar'), await buttons('Second'), await buttons('Late')],
                           [5, 4, 5]);
    assert.strictEqual(messages.length, 1);
    assert.match(messages[0], /^warning: .*"Second", button 2 /);

    const third = await spot(page, 'Second', 3);
    assert.strictEqual(await kit.pixelAt(page, third.x, third.y), '#202020');
    await page.mouse.move(third.x + 20, third.y + 10);
    assert.strictEqual(await kit.pixelAt(page, third.x, third.y), OVER);
    await context.close();
});
