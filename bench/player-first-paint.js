'use strict';
// First paint of a page whose 101 buttons the HTML5 player draws, against a static page
// of 101 positioned links of the same look, in the same chromium run.
// Usage: node bench/player-first-paint.js [ROUNDS]   (after a build: needs build/bin)
// Exit status 1 when the player's median is more than 1.5 times the static page's.
const fs = require('fs');
const path = require('path');
const kit = require('../tests/player/pagekit');

const COUNT = 101, COLUMNS = 10, W = 100, H = 30;
const rounds = Number(process.argv[2]) || 20;

function projectText() {
    const buttons = [];
    for (let i = 0; i < COUNT; i++) {
        const x = 5 + (i % COLUMNS) * (W + 5), y = 5 + Math.floor(i / COLUMNS) * (H + 5);
        buttons.push(`${x}|${y}|${W}|${H}|Button ${i + 1}|Button ${i + 1}|Button ${i + 1}|` +
            `page${i + 1}.htm||_self|1|0|1||||65535|16776960|255|0|16711680|16777215|` +
            'Arial|Arial|Arial|0|0|0|10|10|10||||0|0|0|0|0|0|53|25|53|31|53|37|0||||');
    }
    const width = 5 + COLUMNS * (W + 5), height = 5 + Math.ceil(COUNT / COLUMNS) * (H + 5);
    return { width, height, text: 'Orvelin Project 1.0  Beta 6\r\n' +
        `${width}|${height}|${COUNT}|0|1|0||0||||0|0||Bench|\r\n` + buttons.join('\r\n') + '\r\n' };
}

/** The same bar as plain positioned links: colours, raised edge and centred label. */
function staticPage(width, height) {
    let links = '';
    for (let i = 0; i < COUNT; i++) {
        const x = 5 + (i % COLUMNS) * (W + 5), y = 5 + Math.floor(i / COLUMNS) * (H + 5);
        links += `<a href="page${i + 1}.htm" style="left:${x}px;top:${y}px">Button ${i + 1}</a>\r\n`;
    }
    return '<!DOCTYPE html>\r\n<html><head><meta charset="utf-8"><title>Static</title><style>' +
        `.bar{position:relative;display:inline-block;width:${width}px;height:${height}px;` +
        'background:#000;text-align:left}' +
        `.bar a{position:absolute;box-sizing:border-box;width:${W}px;height:${H}px;` +
        `line-height:${H - 4}px;text-align:center;font:13.33px Arial;color:#000;` +
        'background:#ff0;border:2px solid;border-color:#ffffa6 #595900 #595900 #ffffa6;' +
        'text-decoration:none}.bar a:hover{background:#0ff;color:#00f}' +
        '</style></head>\r\n<body style="margin:0">\r\n<Center>\r\n<div class="bar">\r\n' + links +
        '</div>\r\n</Center>\r\n</body></html>\r\n';
}

function median(values) {
    const sorted = values.slice().sort((a, b) => a - b);
    return sorted[Math.floor(sorted.length / 2)];
}

async function firstPaint(context, url) {
    const page = await context.newPage();
    await page.goto(url);
    const time = await page.evaluate(() => new Promise((resolve) => {
        const look = () => {
            const entry = performance.getEntriesByName('first-contentful-paint')[0];
            if (entry)
                resolve(entry.startTime);
            else
                requestAnimationFrame(look);
        };
        look();
    }));
    await page.close();
    return time;
}

(async () => {
    const dir = kit.tempDir('bench');
    const project = projectText();
    fs.writeFileSync(path.join(dir, 'bench.orv'), project.text);
    const playerUrl = kit.makePage([path.join(dir, 'bench.orv')], dir, { name: 'player.htm' });
    fs.writeFileSync(path.join(dir, 'static.htm'), staticPage(project.width, project.height));
    const staticUrl = 'file://' + path.join(dir, 'static.htm');

    const browser = await kit.launch();
    const context = await browser.newContext();
    const times = { player: [], static: [] };
    try {
        await firstPaint(context, playerUrl); // warm the file cache for both
        await firstPaint(context, staticUrl);
        for (let i = 0; i < rounds; i++) {
            times.player.push(await firstPaint(context, playerUrl));
            times.static.push(await firstPaint(context, staticUrl));
        }
    } finally {
        await browser.close();
        fs.rmSync(dir, { recursive: true, force: true });
    }
    if (process.env.ORVELIN_BENCH_ALL)
        console.log(JSON.stringify(times));
    // Each pair loads back to back, under the same load of the machine: the median of the
    // pairs' ratios is steadier than the ratio of the medians.
    const ratio = median(times.player.map((p, i) => p / times.static[i]));
    console.log(`first contentful paint, median of ${rounds}: player ` +
        `${median(times.player).toFixed(1)} ms, static links ${median(times.static).toFixed(1)} ms; ` +
        `median ratio of the pairs ${ratio.toFixed(2)} (limit 1.5)`);
    process.exitCode = ratio <= 1.5 ? 0 : 1;
})();
