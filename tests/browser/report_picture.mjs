// Takes a picture of a whole report. Called as report_picture.mjs REPORT.html PICTURE.png WIDTH.
import path from "node:path";
import { pathToFileURL } from "node:url";

import { launch } from "./browser.mjs";

const [report, picture, width] = process.argv.slice(2);
const browser = await launch();
const page = await browser.newPage({ viewport: { width: Number(width), height: 600 } });
await page.goto(pathToFileURL(path.resolve(report)).href);
await page.screenshot({ path: picture, fullPage: true });
await browser.close();
