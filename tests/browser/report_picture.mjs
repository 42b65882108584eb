// Takes a picture of a report. Called as report_picture.mjs REPORT.html PICTURE.png WIDTH HEIGHT.
import path from "node:path";
import { pathToFileURL } from "node:url";

import { launch } from "./browser.mjs";

const [report, picture, width, height] = process.argv.slice(2);
const browser = await launch();
const page = await browser.newPage({ viewport: { width: Number(width), height: Number(height) } });
await page.goto(pathToFileURL(path.resolve(report)).href);
await page.screenshot({ path: picture, fullPage: height === "0" });
await browser.close();
