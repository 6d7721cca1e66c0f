'use strict';
// Pages for the player's browser tests and benchmark: the applet code of a project
// (orvelin-cli html) inside a small page with the player's script line after it, and the
// project's images and sounds copied beside it under their bare names, as publishing does.

const { execFileSync } = require('child_process');
const fs = require('fs');
const os = require('os');
const path = require('path');
const zlib = require('zlib');

const binDir = process.env.ORVELIN_BIN_DIR || path.join(__dirname, '..', '..', 'build', 'bin');
const cliPath = path.join(binDir, 'orvelin-cli');

function cli(args) {
    return execFileSync(cliPath, args, {
        encoding: 'utf8',
        env: Object.assign({}, process.env, { QT_QPA_PLATFORM: 'offscreen' }),
    });
}

function tempDir(tag) {
    return fs.mkdtempSync(path.join(os.tmpdir(), 'orvelin-' + tag + '-'));
}

/** Copies the images and sounds that `project` names into `dir`, each by its bare name. */
function copyProjectFiles(project, dir) {
    const lines = fs.readFileSync(project, 'utf8').split(/\r?\n/);
    const paths = [(lines[1] || '').split('|')[6]];
    for (const line of lines.slice(2)) {
        const f = line.split('|');
        if (f.length > 50)
            paths.push(f[13], f[14], f[15], f[31], f[32], f[33]);
    }
    for (const stored of paths) {
        if (!stored)
            continue;
        const from = path.resolve(path.dirname(project), stored.replace(/\\/g, '/'));
        if (fs.existsSync(from))
            fs.copyFileSync(from, path.join(dir, path.basename(stored.replace(/\\/g, '/'))));
    }
}

/**
 * Writes `dir`/`name` holding the applet code of each project (passed through `edit`, when
 * given) and the player's script line, with the player and the projects' files beside it.
 * `body` goes after the script line. Returns the page's file:// address.
 */
function makePage(projects, dir, options = {}) {
    const edit = options.edit || ((code) => code);
    let code = '';
    projects.forEach((project, i) => {
        copyProjectFiles(project, dir);
        code += edit(cli(['html', project]), i);
    });
    fs.copyFileSync(path.join(binDir, 'orvelin-player.js'), path.join(dir, 'orvelin-player.js'));
    const page = '<!DOCTYPE html>\r\n<html><head><meta charset="utf-8"><title>Orvelin</title>' +
        '</head>\r\n<body style="margin:0">\r\n<Center>\r\n' + code + '</Center>\r\n' +
        '<script src="orvelin-player.js"></script>\r\n' + (options.body || '') + '</body></html>\r\n';
    const file = path.join(dir, options.name || 'page.htm');
    fs.writeFileSync(file, page);
    return 'file://' + file;
}

/** Debian's chromium through playwright-core; never a downloaded browser. */
function launch() {
    const { chromium } = require('playwright-core');
    return chromium.launch({ executablePath: process.env.ORVELIN_CHROMIUM || '/usr/bin/chromium' });
}

/** A scratch folder `s.dir` for the file's tests and the browser `s.browser` launched before
 *  them; both go after them. */
function session(tag) {
    const { before, after } = require('node:test');
    const s = { dir: tempDir(tag) };
    before(async () => {
        s.browser = await launch();
    });
    after(async () => {
        await s.browser.close();
        fs.rmSync(s.dir, { recursive: true, force: true });
    });
    return s;
}

/** A fresh context and page of `browser` at `url`, with the console messages and page
 *  errors it collects; `init` runs in the page before its own scripts. */
async function open(browser, url, contextOptions = {}, init = null) {
    const context = await browser.newContext(contextOptions);
    const page = await context.newPage();
    const messages = [];
    page.on('console', (m) => messages.push(m.type() + ': ' + m.text()));
    page.on('pageerror', (e) => messages.push('error: ' + e.message));
    if (init)
        await page.addInitScript(init);
    await page.goto(url);
    return { context, page, messages };
}

/** Compares two PNG images in the browser of `page` (decoded without colour management):
 *  how many pixels differ by at most `tolerance` levels in every channel. */
async function comparePngs(page, first, second, tolerance) {
    return page.evaluate(async ([list, tol]) => {
        const images = [];
        for (const b64 of list) {
            const bytes = Uint8Array.from(atob(b64), (c) => c.charCodeAt(0));
            const bitmap = await createImageBitmap(new Blob([bytes], { type: 'image/png' }),
                { colorSpaceConversion: 'none', premultiplyAlpha: 'none' });
            const canvas = new OffscreenCanvas(bitmap.width, bitmap.height);
            canvas.getContext('2d').drawImage(bitmap, 0, 0);
            images.push(canvas.getContext('2d').getImageData(0, 0, bitmap.width, bitmap.height));
        }
        const [a, b] = images;
        if (a.width !== b.width || a.height !== b.height)
            return { size: [a.width, a.height, b.width, b.height] };
        let close = 0;
        for (let i = 0; i < a.data.length; i += 4)
            close += [0, 1, 2].every((c) => Math.abs(a.data[i + c] - b.data[i + c]) <= tol);
        return { close, total: a.width * a.height };
    }, [[first.toString('base64'), second.toString('base64')], tolerance]);
}

/** The colour on screen at page position (x, y), as "#rrggbb". */
async function pixelAt(page, x, y) {
    // The one row of a 1 by 1 PNG: its filter byte, then the pixel itself whatever the filter.
    const png = await page.screenshot({ clip: { x, y, width: 1, height: 1 } });
    const data = [];
    for (let at = 8; at < png.length; at += 12 + png.readUInt32BE(at)) {
        if (png.toString('latin1', at + 4, at + 8) === 'IDAT')
            data.push(png.subarray(at + 8, at + 8 + png.readUInt32BE(at)));
    }
    return '#' + zlib.inflateSync(Buffer.concat(data)).subarray(1, 4).toString('hex');
}

module.exports = { binDir, cli, tempDir, makePage, launch, session, open, comparePngs, pixelAt };
