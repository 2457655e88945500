import type { Engine, InputFile, Run } from "./engine";

/** An engine whose runs under way are counted on an element, as `data-running`: whoever waits for the page, a test say, sees it there. */
export class CountedEngine implements Engine {
  private running = 0;

  constructor(
    private readonly engine: Engine,
    private readonly place: HTMLElement,
  ) {
    this.count(0);
  }

  async run(args: readonly string[], files: readonly InputFile[], signal?: AbortSignal): Promise<Run> {
    this.count(1);
    try {
      return await this.engine.run(args, files, signal);
    } finally {
      this.count(-1);
    }
  }

  private count(step: number): void {
    this.running += step;
    this.place.dataset["running"] = String(this.running);
  }
}
