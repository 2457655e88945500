/** Lets only so many go on at once; the others wait in their order. */
export class Places {
  private readonly waiting: (() => void)[] = [];

  constructor(private free: number) {}

  async within<Result>(work: () => Promise<Result>): Promise<Result> {
    if (this.free > 0) this.free--;
    else await new Promise<void>((go) => this.waiting.push(go));
    try {
      return await work();
    } finally {
      const next = this.waiting.shift();
      if (next) next();
      else this.free++;
    }
  }
}
