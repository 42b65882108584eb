// Chromium of the system, driven from here; the packages are those of the working folder.
import { createRequire } from "node:module";
import path from "node:path";

const require = createRequire(path.join(process.cwd(), "package.json"));
export const { chromium } = require("playwright-core");
export const axeSource = require("axe-core").source;

export function launch() {
    return chromium.launch({
        executablePath: "/usr/bin/chromium",
        args: ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
            "--disable-component-update", "--disable-sync"],
    });
}
