// Opens reports in a browser and looks at them as their readers do.
//
// Called as report_check.mjs RUNNER EXAMPLES, in a folder that holds the packages; reports are written beside them.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { readFileSync, writeFileSync } from "node:fs";
import path from "node:path";
import { pathToFileURL } from "node:url";

import { axeSource, launch } from "./browser.mjs";

const [runner, examples] = process.argv.slice(2);

const peakflow = ["-d", path.join(examples, "peakflow.json")];
const oddNames = path.resolve("odd-names.csv");
writeFileSync(oddNames, `"<script>alert(1)</script>","a""b",${"long".repeat(40)},血压\n1,2,3,4\n2,4,4,3\n5,3,6,4\n`);

const reports = [
    { language: "en", data: path.join(examples, "peakflow.csv"), options: [...peakflow, "-f", path.join(examples, "full.bld")] },
    { language: "zh_CN", data: path.join(examples, "peakflow.csv"), options: [...peakflow, "-f", path.join(examples, "full.bld")] },
    { language: "de", data: path.join(examples, "peakflow.csv"), options: [...peakflow, "-f", path.join(examples, "ratios.bld")] },
    { language: "ja", data: oddNames, options: ["-c", `VARIABLE="<script>alert(1)</script>" "a""b" WITH=${"long".repeat(40)} 血压
                                            PRINT(DETAILS MEANDIFF AGREEMENT) PLOT(RATIO AGREEMENT_LIMITS)`] },
];

function write({ language, data, options }) {
    const html = path.resolve(`report-${language}.html`);
    const json = path.resolve(`report-${language}.json`);
    execFileSync(runner, [data, ...options, "-l", language, "-o", html, "-o", json], { stdio: "inherit" });
    const documents = JSON.parse(readFileSync(json, "utf-8")).documents;
    return { language, html, objects: documents.flatMap((document) => document.objects) };
}

/** What a page shows, in the order of its objects. */
function readPage() {
    const texts = (parent, selector) => [...parent.querySelectorAll(selector)].map((element) => element.textContent);
    return [...document.querySelectorAll(".table, figure")].map((object) => object.matches("figure")
        ? {
            name: object.querySelector("svg")?.getAttribute("aria-labelledby") &&
                document.getElementById(object.querySelector("svg").getAttribute("aria-labelledby")).textContent,
            points: object.querySelectorAll("circle").length,
            drawnAt: object.querySelector("svg")?.getBoundingClientRect().width,
        }
        : {
            title: object.querySelector("caption span").textContent,
            rows: [...object.querySelectorAll("tbody tr")].map((row) => texts(row, "td")),
            footnotes: texts(object, ".footnote").map((text) => text.replace(/^\w+ /, "")),
        });
}

const shown = (cell) => (typeof cell === "number" ? cell.toFixed(3) : cell);

function expectedObject(object) {
    return object.type === "graph"
        ? { name: object.name, points: object.data.xdata.length }
        : { title: object.title, rows: object.cells.map((row) => row.map(shown)), footnotes: object.footnotes };
}

async function expectAccessible(page, name) {
    await page.evaluate(axeSource);
    const { violations } = await page.evaluate(() => globalThis.axe.run());
    assert.deepEqual(violations.map(({ id, nodes }) => [id, nodes[0].html]), [], `${name}: violations that axe found`);
}

/** Plots take the colour of their texts from the page, so that they can be read on its ground. */
async function expectReadablePlots(page, name) {
    const colours = await page.evaluate(() => {
        const ink = getComputedStyle(document.body).color;
        return [...document.querySelectorAll("svg text")].map((text) => getComputedStyle(text).fill)
            .filter((fill) => fill !== ink);
    });
    assert.deepEqual(colours, [], `${name}: colours of texts in plots`);
}

async function check(browser, report) {
    const page = await browser.newPage({ viewport: { width: 1100, height: 900 } });
    const problems = [];
    page.on("console", (message) => problems.push(`console: ${message.text()}`));
    page.on("pageerror", (error) => problems.push(`error: ${error.message}`));
    page.on("dialog", (dialog) => problems.push(`dialog: ${dialog.message()}`));
    page.on("request", (request) => {
        if (request.url() !== pathToFileURL(report.html).href) {
            problems.push(`request: ${request.url()}`);
        }
    });
    await page.goto(pathToFileURL(report.html).href);
    assert.equal(await page.getAttribute("html", "lang"), report.language.replace("_", "-"));

    const objects = await page.evaluate(readPage);
    assert.deepEqual(objects.map(({ drawnAt, ...object }) => object), report.objects.map(expectedObject));
    for (const { name, drawnAt } of objects.filter((object) => object.name)) {
        assert.ok(drawnAt > 500, `${name} is drawn ${drawnAt} pixels wide`);
    }
    for (const colorScheme of ["light", "dark"]) {
        await page.emulateMedia({ colorScheme });
        await expectAccessible(page, `${report.language}, ${colorScheme}`);
        await expectReadablePlots(page, `${report.language}, ${colorScheme}`);
    }
    await page.setViewportSize({ width: 390, height: 844 });
    const width = await page.evaluate(() => document.documentElement.scrollWidth);
    assert.ok(width <= 390, `${report.language}: the page is ${width} pixels wide on a screen of 390`);
    await expectAccessible(page, `${report.language}, narrow`);
    assert.deepEqual(problems, [], `${report.language}: what the browser noticed`);
    await page.close();
    console.log(`${report.language}: ${objects.length} tables and plots`);
}

const browser = await launch();
try {
    for (const report of reports) {
        await check(browser, write(report));
    }
} finally {
    await browser.close();
}
