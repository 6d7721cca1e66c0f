'use strict';
// State sounds: the player's Sun audio decoder against files written by sox, and the OVER
// sound of a built page, opened from disk, reaching the audio output.
const { test } = require('node:test');
const assert = require('node:assert');
const { execFileSync } = require('child_process');
const fs = require('fs');
const path = require('path');
const kit = require('./pagekit');

const bar = path.join(__dirname, 'data', 'bar.orv');
const s = kit.session('sounds');

/** A two-tone sound written by sox with `options` (rate, channels, encoding). */
function sox(name, options) {
    const file = path.join(s.dir, name);
    execFileSync('sox', ['-n', ...options, file, 'synth', '0.3', 'sine', '440', 'sine', '660',
                         'vol', '0.8']);
    return file;
}

test('the decoder reads every encoding sox writes as sox reads it', async () => {
    const cases = {
        'mulaw.au': ['-r', '8000', '-c', '1', '-e', 'u-law'],
        'alaw.au': ['-r', '8000', '-c', '2', '-e', 'a-law'],
        'pcm8.au': ['-r', '11025', '-c', '1', '-e', 'signed', '-b', '8'],
        'pcm16.au': ['-r', '22050', '-c', '2', '-e', 'signed', '-b', '16'],
        'pcm24.au': ['-r', '44100', '-c', '3', '-e', 'signed', '-b', '24'],
        'float.au': ['-r', '16000', '-c', '1', '-e', 'floating-point', '-b', '32'],
    };
    const page = await s.browser.newPage();
    await page.goto(kit.makePage([bar], s.dir, { name: 'decode.htm' }));
    for (const [name, options] of Object.entries(cases)) {
        const file = sox(name, options);
        const expected = new Float32Array(new Uint8Array(execFileSync(
            'sox', [file, '-t', 'raw', '-e', 'floating-point', '-b', '32', '-L', '-']
        )).buffer);
        const got = await page.evaluate((b64) => {
            const d = OrvelinPlayer.decodeAu(Uint8Array.from(atob(b64), (c) => c.charCodeAt(0)));
            // Interleaved again, as sox writes raw samples.
            const out = [];
            for (let i = 0; i < d.channels[0].length; i++)
                d.channels.forEach((c) => out.push(c[i]));
            return { rate: d.rate, channels: d.channels.length, samples: out };
        }, fs.readFileSync(file).toString('base64'));
        assert.deepStrictEqual([got.rate, got.channels, got.samples.length],
                               [Number(options[1]), Number(options[3]), expected.length], name);
        const worst = Math.max(...got.samples.map((v, i) => Math.abs(v - expected[i])));
        assert.ok(worst < 1e-4, name + ' differs by ' + worst);
    }
    assert.strictEqual(await page.evaluate(() => {
        try {
            return OrvelinPlayer.decodeAu(new Uint8Array(30));
        } catch (e) {
            return e.message;
        }
    }), 'no Sun audio');
    await page.close();
});

test('the OVER sound of a built page opened from disk plays after the first gesture', async () => {
    // The project of bar.orv with a mu-law OVER sound on button 1, built by the CLI.
    const sound = sox('over.au', ['-r', '8000', '-c', '1', '-e', 'u-law']);
    const lines = fs.readFileSync(bar, 'utf8').split('\n');
    const first = lines[2].split('|');
    first[32] = sound;
    lines[2] = first.join('|');
    const project = path.join(s.dir, 'sound.orv');
    fs.writeFileSync(project, lines.join('\n'));
    const site = path.join(s.dir, 'site');
    fs.mkdirSync(site);
    // A program folder of its own: the build copies the player from it.
    const program = path.join(s.dir, 'program');
    fs.mkdirSync(program);
    for (const name of ['Orvel.ini', 'orvelin-player.js'])
        fs.copyFileSync(path.join(kit.binDir, name), path.join(program, name));
    kit.cli(['build', project, path.join(site, 'built.html'), '--program-dir', program]);
    assert.ok(fs.existsSync(path.join(site, 'over.au.js')));

    // Every node that reaches the output is also heard by an analyser.
    const url = kit.makePage([project], site);
    const { context, page, messages } = await kit.open(s.browser, url, {}, () => {
        window.heard = [];
        const connect = AudioNode.prototype.connect;
        AudioNode.prototype.connect = function (target, ...rest) {
            if (target instanceof AudioDestinationNode) {
                const analyser = target.context.createAnalyser();
                connect.call(this, analyser);
                heard.push(analyser);
            }
            return connect.call(this, target, ...rest);
        };
        window.loudest = () => Math.max(0, ...heard.map((a) => {
            const data = new Float32Array(a.fftSize);
            a.getFloatTimeDomainData(data);
            return Math.max(...data.map(Math.abs));
        }));
    });
    const box = await page.locator('[name="sound"]').boundingBox();
    // Before any gesture the pointer over the button stays silent, without errors.
    await page.mouse.move(box.x + 20, box.y + 20);
    await page.mouse.move(box.x + 20, box.y + 100);
    assert.strictEqual(await page.evaluate(() => heard.length), 0);
    await page.mouse.click(box.x + 20, box.y + 100);
    await page.mouse.move(box.x + 20, box.y + 20);
    await page.waitForFunction(() => loudest() > 0.3);
    assert.deepStrictEqual(messages, []);
    await context.close();
});
