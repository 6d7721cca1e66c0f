// The built example page, opened from its folder in Debian's chromium (headless):
// it loads without script errors, and its applet element carries every parameter of
// the project with the values the generator wrote.
// Usage: node builtpage.test.js ORVELIN_CLI PROJECT PROGRAM_FOLDER
'use strict';

const { execFileSync, spawnSync } = require('child_process');
const fs = require('fs');
const os = require('os');
const path = require('path');
const { pathToFileURL } = require('url');

const CHROMIUM = '/usr/bin/chromium';

function fail(message) {
    console.error('FAIL: ' + message);
    process.exit(1);
}

// Every <Param Name="..." value="..."> of a text, in order.
function parameters(text) {
    return [...text.matchAll(/<Param Name="([^"]*)" ?value="([^"]*)">/g)].map((m) => [m[1], m[2]]);
}

async function main() {
    const [cli, project, programData] = process.argv.slice(2);
    if (!cli || !project || !programData)
        fail('usage: builtpage.test.js ORVELIN_CLI PROJECT PROGRAM_FOLDER');
    const { chromium } = require('playwright-core'); // scripts/install-node-modules.sh

    // A program folder with stand-ins for the applet files, which are not part of
    // Orvelin: the build copies them and the page names them.
    const work = fs.mkdtempSync(path.join(os.tmpdir(), 'orvelin-page-'));
    const program = path.join(work, 'program');
    const site = path.join(work, 'site');
    fs.mkdirSync(program);
    fs.mkdirSync(site);
    fs.copyFileSync(path.join(programData, 'Orvel.ini'), path.join(program, 'Orvel.ini'));
    fs.writeFileSync(path.join(program, 'Orvel1b6.class'), 'stand-in');
    fs.writeFileSync(path.join(program, 'Orvel1b6.jar'), 'stand-in');

    let browser;
    try {
        const page = path.join(site, 'navbar.html');
        // The plain applet page: what this test reads is the applet element itself.
        const build = spawnSync(
            cli, ['build', project, page, '--program-dir', program, '--no-player'],
            { encoding: 'utf8' });
        if (build.status !== 0)
            fail('orvelin-cli build exited with ' + build.status + ': ' + build.stderr);
        const code = execFileSync(cli, ['html', project, '--program-dir', program],
                                  { encoding: 'utf8' });
        const expected = parameters(code);
        const buttonCount = Number(expected.find(([name]) => name === 'p')[1].split('|')[1]);
        if (expected.length !== 2 + buttonCount || buttonCount < 1)
            fail('the generated code holds ' + expected.length + ' parameters for ' +
                 buttonCount + ' buttons');

        // Every file the parameters name lies beside the page.
        const fileFields = [[13, 14, 15], [31, 32, 33]].flat();
        const named = [expected[1][1].split('|')[5]];
        for (const [, value] of expected.slice(2))
            for (const k of fileFields)
                named.push(value.split('|')[k]);
        for (const name of named.filter((n) => n))
            if (!fs.existsSync(path.join(site, name)))
                fail(name + ' is named by the page but was not copied beside it');

        browser = await chromium.launch({ executablePath: CHROMIUM, args: ['--no-sandbox'] });
        const tab = await browser.newPage();
        const errors = [];
        tab.on('pageerror', (e) => errors.push(e.message));
        tab.on('console', (m) => { if (m.type() === 'error') errors.push(m.text()); });
        await tab.goto(pathToFileURL(page).href, { waitUntil: 'load' });
        const seen = await tab.evaluate(() => {
            const applet = document.querySelector('applet');
            return {
                name: applet && applet.getAttribute('name'),
                params: applet ? [...applet.querySelectorAll('param')].map(
                    (p) => [p.getAttribute('name'), p.getAttribute('value')]) : [],
                jsCaller: typeof InitJSCaller === 'function',
            };
        });
        if (errors.length)
            fail('script errors: ' + errors.join('; '));
        if (seen.name !== expected[1][1].split('|')[0])
            fail('the applet is named ' + seen.name);
        if (!seen.jsCaller)
            fail('the page links to JavaScript but InitJSCaller is not defined');
        // In an attribute value the browser turns "&nbsp" into a no-break space, except
        // before a letter, a digit or "=" (the HTML rule for references without ";").
        // The applet reads the decoded value, so compare with the same decoding.
        const decode = (v) => v.replace(/&nbsp(?![A-Za-z0-9=])/g, '\u00a0');
        if (JSON.stringify(seen.params) !==
            JSON.stringify(expected.map(([n, v]) => [n, decode(v)])))
            fail('parameters differ:\n' + JSON.stringify(seen.params) + '\n' +
                 JSON.stringify(expected));
        console.log('ok: ' + seen.params.length + ' parameters, ' + named.filter((n) => n).length +
                    ' files beside the page');
    } finally {
        if (browser)
            await browser.close();
        fs.rmSync(work, { recursive: true, force: true });
    }
}

main().catch((e) => fail(e.stack || String(e)));
