// The game without a window, as the measure of what the page shows.
import {spawn} from "node:child_process";
import {createInterface} from "node:readline";

export class Console {
  constructor(program) {
    this.process = spawn(program, {stdio: ["pipe", "pipe", "inherit"]});
    this.lines = createInterface({input: this.process.stdout})[Symbol.asyncIterator]();
  }

  async ask(request) {
    this.process.stdin.write(request + "\n");
    const reply = JSON.parse((await this.lines.next()).value);
    if (!reply.ok) throw new Error(`${request}: ${reply.error}`);
    return reply;
  }

  end() {
    this.process.kill();
  }
}
