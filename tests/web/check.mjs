// The page in a real browser: node check.mjs ADDRESS CONSOLE-PROGRAM [WORD ...]     only tests with one of the words
//
// The game is played by its picture and by its words; what it keeps is looked for after a reload; its pixels are held
// against those of the console, which the desktop's painter makes.
import assert from "node:assert/strict";
import {cpSync, existsSync, mkdtempSync, readFileSync, readdirSync} from "node:fs";
import {createRequire} from "node:module";
import {tmpdir} from "node:os";
import {join} from "node:path";
import {test} from "node:test";
import {Page, isFirefox, launch, sleep} from "./browser.mjs";
import {Console} from "./console.mjs";

const [address, program, ...only] = process.argv.slice(2);
const axe = readFileSync(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");

// Each test has a browser of its own, so that no archive is left from another.
const inBrowser = (name, run, notHere = false) => test(name, {
  timeout: 180000,
  skip: notHere || (only.length > 0 && !only.some((word) => name.includes(word))),
}, async () => {
  const browser = await launch();
  try { await run(browser); } finally { await browser.close(); }
});

const swearIn = async (page, name) => {
  await page.click(400, 300);
  await page.press("Start Game");
  await page.fill(name);
  await page.press("OK");
};
const welcomed = async (page) => page.waitFor("Next month");

// Answers whatever stands in the way until the game has come so far, by the twin's words alone.
const playUntil = async (page, isThere) => {
  // What a president says who wants it over with.
  const wishes = ["OK", "Oh!", "Deal!", "Never!", "No", "Close", "Go on", "Next month"];
  for (let step = 0; step < 1500; ++step) {
    const screens = await page.screens();
    const buttons = screens.flatMap((screen) => screen.buttons);
    if (await isThere(screens)) return;
    const wish = wishes.find((words) => buttons.some((button) => button.startsWith(words)));
    if (await page.says("can't cover our expenses")) {
      for (const words of ["Presidential actions", "Sell an island", "Proceed", "Next month"]) await page.press(words);
    } else if (wish) await page.press(wish);
    else if (buttons.length > 0 && !buttons[0].startsWith("Presidential")) await page.press(buttons[step % buttons.length]);
    else await page.key(" ");
    await sleep(20);
  }
  throw new Error("no end after 1500 steps: " + JSON.stringify(await page.screens(), null, 1));
};

inBrowser("a game from the title to the hall, by words alone", async (browser) => {
  const page = await Page.open(browser, address);
  await page.click(400, 300);
  for (const words of ["Settings", "Pauses", "Done", "Start Game"]) await page.press(words);  // with short pauses
  await page.fill("Ada");
  await page.press("OK");
  await welcomed(page);
  await playUntil(page, (screens) => screens.some((screen) => screen.title.includes("hall of fame")));
  assert.deepEqual(page.troubles, []);
});

inBrowser("a month by the picture alone, and the menu's keys", async (browser) => {
  const page = await Page.open(browser, address);
  await page.click(400, 300);
  await page.click(658, 300);
  await page.type("Åsa Ñandú");
  await page.key("Enter");
  await welcomed(page);
  assert(await page.says("Month 1"));
  await page.key("2");
  assert(await page.says("Taxes and budget"));
  await page.key("Escape");
  await sleep(3200);
  await page.key("5");
  await page.waitFor("Month 2");
  assert.deepEqual(page.troubles, []);
  // The month is kept when it is closed.
  await playUntil(page, () => page.tab.evaluate(() => Module.FS.analyzePath("/home/web_user/.local/share/quenvale/Save/Continue").exists));
  await page.kept();
  await page.reload();
  await page.click(400, 300);
  await page.press("Continue");
  await page.waitFor("Welcome back");
});

const saveInto = async (page, slot) => {
  await page.press("Options");
  await page.press("Save Game");
  await page.press(`Game Slot ${slot}`);
  await page.press("Save");
};

inBrowser("what was saved is there after a reload", async (browser) => {
  const page = await Page.open(browser, address);
  await swearIn(page, "Ada");
  await welcomed(page);
  await saveInto(page, 2);
  await page.waitFor("Game Saved");
  await page.reload();
  await page.click(400, 300);
  await page.press("Load Game");
  const slots = (await page.screens())[0];
  assert(slots.text.includes("Game Slot 2"), slots.text);
  await page.press("Game Slot 2");
  await page.press("Load");
  await welcomed(page);
  assert(await page.says("Month 1"));
});

inBrowser("a save is told as done when the browser has it, and as lost when it refuses", async (browser) => {
  const page = await Page.open(browser, address);
  await swearIn(page, "Ada");
  await welcomed(page);
  // From now on a transaction ends only when the test says how.
  await page.tab.evaluate(() => {
    const put = IDBObjectStore.prototype.put;
    IDBObjectStore.prototype.put = function (...what) {
      const wait = () => {
        if (window.answer === "no") this.transaction.abort();
        else if (window.answer !== "yes") this.get("").onsuccess = wait;
      };
      wait();
      return put.apply(this, what);
    };
  });
  const answer = (word) => page.tab.evaluate((word) => { window.answer = word; }, word);
  await saveInto(page, 2);
  await sleep(300);
  assert(await page.says("One moment, Mister President"));
  assert(!(await page.says("Game Saved")));
  assert(await page.asksBeforeClosing());
  await answer("yes");
  await page.waitFor("Game Saved");
  assert(!(await page.asksBeforeClosing()));
  await answer("no");
  await saveInto(page, 3);
  await page.waitFor("could not be saved. Save/Save3: cannot be kept");
  assert.match(await page.tab.$eval("#notice", (notice) => notice.textContent), /not kept/);
  assert(await page.asksBeforeClosing());
});

inBrowser("games go from the desktop to the page and back, byte for byte", async (browser) => {
  const folder = mkdtempSync(join(tmpdir(), "quenvale-archive-"));
  const headless = new Console(program);
  browser.once("disconnected", () => headless.end());
  cpSync("assets", folder, {recursive: true});
  const ask = async (...requests) => { for (const request of requests) await headless.ask(request); };
  await ask(`start ${JSON.stringify(folder)}`, "click frmlogo", "click frmStart.Command1", "click frmName.Command3",
    "set Money 1234567", "click frmMain.Label5(5)", "click frmOptions.Label5(6)", "click frmSave.Option4",
    `type frmSave.Text4 "From the desk"`, "click frmSave.Command1");
  const written = ["Save4", "Save4.sum", "names"];

  const page = await Page.open(browser, address);
  await (await page.tab.$("#import")).uploadFile(...written.map((name) => join(folder, "Save", name)));
  await page.tab.waitForFunction(() => /names are in the archive/.test(document.getElementById("notice").textContent));
  await page.reload();  // from the browser's store
  await page.click(400, 300);
  await page.press("Load Game");
  assert((await page.screens())[0].text.includes("From the desk"));
  await page.press("Game Slot 4");
  await page.press("Load");
  await welcomed(page);
  await page.press("Close").catch(() => {});
  await saveInto(page, 5);
  await page.waitFor("Game Saved");

  const brought = browser.downloads;
  await page.tab.click("#export");
  const wanted = [...written, "Save5", "Save5.sum"];
  for (let i = 0; i < 50 && !wanted.every((name) => existsSync(join(brought, name))); ++i) await sleep(100);
  for (const name of ["Save4", "Save4.sum"]) {
    assert(readFileSync(join(brought, name)).equals(readFileSync(join(folder, "Save", name))), `${name} of ${readdirSync(brought)}`);
  }
  cpSync(brought, join(folder, "Save"), {recursive: true});
  await ask("start " + JSON.stringify(folder), "click frmlogo", "click frmStart.Command4");
  await ask("click frmLoad.Option5", "click frmLoad.Command1");
  assert.equal((await headless.ask("get Money")).value, 1234567);
});

inBrowser("the settings' sheet counts, and is remembered", async (browser) => {
  const page = await Page.open(browser, address);
  await page.tab.evaluate(() => {
    const make = AudioContext.prototype.createGain;
    AudioContext.prototype.createGain = function () { return window.gain = make.call(this); };
    window.said = [];
    speechSynthesis.speak = (words) => window.said.push(words.text);
  });
  const loudness = () => page.tab.evaluate(() => window.gain.gain.value);
  await page.click(400, 300);
  await page.press("Settings");
  assert((await page.screens())[0].text.includes("Window"), "nobody has asked for the whole screen");
  await page.press("Quieter");
  assert.equal((await loudness()).toFixed(2), "0.90");
  await page.press("Silence");
  assert.equal(await loudness(), 0);
  await page.press("Narration");
  await page.tab.waitForFunction(() => window.said.some((words) => words.includes("Narration")));
  await page.kept();
  await page.reload();
  await page.click(400, 300);
  await page.press("Settings");
  assert.match((await page.screens())[0].text, /9 of 10.*Silence: On.*Narration: On/s);
});

inBrowser("the likely next pictures come before they are asked for", async (browser) => {
  const page = await Page.open(browser, address, {width: 640, height: 520});
  await page.tab.waitForNetworkIdle({idleTime: 500});
  const order = ["first.bin", "late.bin", "images/start.bmp", "images/office/night.png", "images/map.bmp"]
    .map((name) => page.requests.findIndex((url) => url.endsWith(name)));
  assert.deepEqual(order, [...order].sort((a, b) => a - b));
  assert(order[0] >= 0);
  assert(!page.requests.some((url) => url.includes("/2x/")), "this window needs none of twice the size");
});

inBrowser("a second tab plays, and is told that it keeps nothing", async (browser) => {
  const first = await Page.open(browser, address);
  const second = await Page.open(browser, address);
  assert.match(await second.tab.$eval("#notice", (notice) => notice.textContent), /Another tab has the archive/);
  assert.equal(await first.tab.$eval("#notice", (notice) => notice.textContent), "");
  await second.click(400, 300);
  await second.waitFor("Start Game");
});

inBrowser("it plays without a network the second time", async (browser) => {
  const page = await Page.open(browser, address);
  await page.tab.waitForFunction(() => navigator.serviceWorker.controller !== null);
  await page.tab.setOfflineMode(true);
  await page.reload();
  await swearIn(page, "Ada");
  await welcomed(page);
}, isFirefox && "its driver cannot cut the network");

// The colours of the canvas that differ from a picture file's, by more than the last bits of a scaled picture.
const differences = (page, png) => page.tab.evaluate(async (png) => {
  const bytes = Uint8Array.from(atob(png), (letter) => letter.charCodeAt(0));
  const shot = await createImageBitmap(new Blob([bytes], {type: "image/png"}));
  const other = new OffscreenCanvas(800, 600).getContext("2d");
  other.drawImage(shot, 0, 0);
  const shown = document.getElementById("canvas").getContext("2d").getImageData(0, 0, 800, 600).data;
  const wanted = other.getImageData(0, 0, 800, 600).data;
  let count = 0;
  for (let i = 0; i < shown.length; ++i) count += Math.abs(shown[i] - wanted[i]) > 2;
  return count;
}, readFileSync(png).toString("base64"));

inBrowser("the canvas shows the console's pixels", async (browser) => {
  const page = await Page.open(browser, address, {width: 800, height: 640});
  const bar = await page.tab.$eval("#bar", (bar) => bar.offsetHeight);
  await page.tab.setViewport({width: 800, height: 600 + bar});
  // The console shows a beginner no more than anybody: no first steps, no hints that wait for a second.
  await page.tab.evaluate(async () => {
    Module.FS.mkdirTree("/home/web_user/.config/quenvale");
    Module.FS.writeFile("/home/web_user/.config/quenvale/settings", "first-steps = off\nhints = off\n");
    await Module.page.keep();
  });
  await page.reload();
  const headless = new Console(program);
  browser.once("disconnected", () => headless.end());
  const folder = mkdtempSync(join(tmpdir(), "quenvale-shots-"));
  const keys = (key) => [[`key ${key}`], async () => { await sleep(1100); await page.key(key); }];
  const steps = {
    title: [["start"], async () => {}],
    start: [["click frmlogo"], () => page.press("Go on")],
    name: [["click frmStart.Command1"], () => page.press("Start Game")],
    welcome: [["type frmName.Text1 \"Ada\"", "click frmName.Command3"], async () => { await page.fill("Ada"); await page.press("OK"); }],
    taxes: keys("2"),
    actions: keys("1"),
    options: keys("6"),
    save: [["click frmOptions.Label5(6)"], () => page.press("Save Game")],
  };
  for (const [name, [requests, act]] of Object.entries(steps)) {
    for (const request of requests) await headless.ask(request);
    await act();
    await page.tab.waitForNetworkIdle({idleTime: 300});
    await sleep(200);
    const file = join(folder, name + ".png");
    await headless.ask(`shot ${JSON.stringify(file)}`);
    await page.tab.screenshot({path: join(folder, name + ".page.png"), captureBeyondViewport: false});
    assert.equal(await differences(page, file), 0, `${name}: see ${folder}`);
  }
});

inBrowser("nothing wakes an idle page", async (browser) => {
  const page = await Page.open(browser, address);
  await sleep(1000);
  await page.tab.evaluate(() => {
    window.steps = 0;
    const step = Module._quenvale_step;
    Module._quenvale_step = () => { ++window.steps; step(); };
  });
  await sleep(5000);
  assert.equal(await page.tab.evaluate(() => window.steps), 0);
});

inBrowser("the page and its twin have no barrier that a checker finds", async (browser) => {
  const page = await Page.open(browser, address);
  await swearIn(page, "Ada");
  await welcomed(page);
  await page.press("Taxes and budget");
  await page.tab.evaluate(axe);
  const found = await page.tab.evaluate(async () => (await window.axe.run()).violations.map((v) => `${v.id}: ${v.nodes.map((n) => n.html).join(" ")}`));
  assert.deepEqual(found, []);
});

inBrowser("nothing is asked of anybody else", async (browser) => {
  const page = await Page.open(browser, address);
  await swearIn(page, "Ada");
  await welcomed(page);
  assert.deepEqual(page.requests.filter((url) => !url.startsWith(address) && !url.startsWith("data:")), []);
  assert.equal((await page.tab.cookies()).length, 0);
});
