// A browser with the game's page in it, and a player's hands for both of its halves.
import {mkdtempSync} from "node:fs";
import {tmpdir} from "node:os";
import {join} from "node:path";
import puppeteer from "puppeteer-core";

export const sleep = (ms) => new Promise((resolve) => setTimeout(resolve, ms));

export const isFirefox = process.env.QUENVALE_BROWSER === "firefox";

// What is downloaded lies in the folder `downloads` of the browser that is returned.
export async function launch() {
  const downloads = mkdtempSync(join(tmpdir(), "quenvale-brought-"));
  const browser = await puppeteer.launch(isFirefox
    ? {browser: "firefox", executablePath: "/usr/bin/firefox-esr", headless: true,
      extraPrefsFirefox: {"browser.download.folderList": 2, "browser.download.dir": downloads, "dom.disable_beforeunload": true}}
    : {executablePath: "/usr/bin/chromium", headless: true, downloadBehavior: {policy: "allow", downloadPath: downloads},
      args: ["--no-sandbox", "--autoplay-policy=user-gesture-required"]});
  return Object.assign(browser, {downloads});
}

export class Page {
  static async open(browser, url, window = {}) {
    const page = await Page.prepare(browser, window);
    await page.load(url);
    return page;
  }

  // A tab in which nothing is loaded yet.
  static async prepare(browser, {width = 1000, height = 800, ratio = 1} = {}) {
    const page = new Page();
    page.tab = await browser.newPage();
    page.troubles = [];
    page.tab.on("pageerror", (error) => page.troubles.push(error.message));
    page.tab.on("console", (line) => { if (line.type() === "error") page.troubles.push(line.text()); });
    page.requests = [];
    page.tab.on("request", (request) => page.requests.push(request.url()));
    await page.tab.setViewport({width, height, deviceScaleFactor: ratio});
    return page;
  }

  async load(url) {
    await this.tab.goto(url);
    await this.started();
  }

  async reload() {
    await this.tab.reload();
    await this.started();
  }

  async started() {
    await this.tab.waitForFunction(() => performance.getEntriesByName("title").length > 0, {timeout: 20000});
  }

  // A press at a place of the 800 x 600 picture.
  async click(x, y) {
    const place = await this.tab.evaluate((x, y) => {
      const box = document.getElementById("canvas").getBoundingClientRect();
      const scale = Math.min(box.width / 800, box.height / 600);
      return [box.left + (box.width - 800 * scale) / 2 + x * scale, box.top + (box.height - 600 * scale) / 2 + y * scale];
    }, x, y);
    await this.tab.mouse.click(...place);
    await this.settle();
  }

  async key(name) {
    await this.tab.keyboard.press(name);
    await this.settle();
  }

  async type(text) {
    await this.tab.keyboard.type(text);
    await this.settle();
  }

  // What comes in is handled within a step of the page's own.
  async settle() {
    await sleep(60);
  }

  // Whether closing the tab now would be asked about.
  async asksBeforeClosing() {
    return this.tab.evaluate(() => {
      const event = new Event("beforeunload", {cancelable: true});
      window.dispatchEvent(event);
      return event.defaultPrevented;
    });
  }

  // Until what was written is in the browser's store.
  async kept() {
    for (let i = 0; i < 100 && await this.asksBeforeClosing(); ++i) await sleep(50);
  }

  // The screens of the twin, the front one first: [{title, text, buttons}]; those that answer.
  async screens() {
    return this.tab.evaluate(() => [...document.querySelectorAll("#twin > section")].filter((part) => !part.inert).map((part) => ({
      title: part.getAttribute("aria-label"),
      text: part.textContent,
      buttons: [...part.querySelectorAll("button:enabled")].map((button) => button.textContent),
    })));
  }

  async says(text) {
    return (await this.tab.$eval("#twin", (twin) => twin.textContent)).includes(text);
  }

  async waitFor(text, timeout = 8000) {
    await this.tab.waitForFunction((text) => document.getElementById("twin").textContent.includes(text), {timeout}, text);
  }

  // The twin follows the picture by a moment, by more on a busy machine.
  async buttonCame(words) {
    await this.tab.waitForFunction((words) => [...document.querySelectorAll("#twin > section:not([inert]) button:enabled")]
      .some((button) => button.textContent.startsWith(words)), {timeout: 3000, polling: 20}, words).catch(() => {});
  }

  // Presses a button of the twin whose words begin so.
  async press(words) {
    await this.buttonCame(words);
    const found = await this.tab.evaluate((words) => {
      const button = [...document.querySelectorAll("#twin > section")].filter((part) => !part.inert)
        .flatMap((part) => [...part.querySelectorAll("button:enabled")])
        .find((button) => button.textContent.startsWith(words));
      if (button) button.click();
      return Boolean(button);
    }, words);
    if (!found) throw new Error(`no button "${words}" in ${JSON.stringify(await this.screens(), null, 1)}`);
    await this.settle();
  }

  async fill(text) {
    await this.tab.evaluate((text) => {
      const field = document.querySelector("#twin > section:not([inert]) input");
      field.value = text;
      field.dispatchEvent(new Event("change"));
    }, text);
    await this.settle();
  }
}
