/**
 * The shipped page's engine. The module is compiled once; each run has an instance of its own in a worker of its own, so that the
 * page never stands still, nothing is left of one run for the next, and a run is cancelled by ending its worker. One worker is
 * always started ahead.
 */
import { fromBase64 } from "./base64";
import type { Engine, InputFile, Run } from "./engine";
import { EngineError } from "./engine_error";
import { kMostBytes } from "./limits";
import { Places } from "./places";
import type { Answer, Order, Prepare } from "./worker";

const mostWorkers = 4;

const textOf = (id: string) => document.getElementById(id)?.textContent ?? "";

async function unpacked(base64: string): Promise<ArrayBuffer> {
  const packed = new Blob([fromBase64(base64)]).stream();
  return new Response(packed.pipeThrough(new DecompressionStream("gzip"))).arrayBuffer();
}

async function compiled(): Promise<WebAssembly.Module> {
  if (typeof WebAssembly === "undefined") throw new EngineError("webAssemblyOff");
  if (typeof DecompressionStream === "undefined") throw new EngineError("browserTooOld");
  const bytes = await unpacked(textOf("plateconfig-module"));
  try {
    return await WebAssembly.compile(bytes);
  } catch (error) {
    // A policy's refusal is a CompileError too; only a browser without exceptions of WebAssembly fails to understand.
    throw new EngineError(
      /polic|csp|unsafe-eval/i.test(String(error)) ? "webAssemblyOff" : "browserTooOld",
      String(error),
    );
  }
}

const decoder = new TextDecoder("utf-8", { ignoreBOM: true });

function asText(answer: Answer): Run {
  if ("failure" in answer) throw new EngineError("broken", answer.failure);
  const { code, out, err, written } = answer;
  return { code, out: decoder.decode(out), err: decoder.decode(err), written };
}

/** A worker, and what is heard of it should it fail: that may be long before it has an order. */
interface Hand {
  readonly worker: Worker;
  readonly failure: Promise<never>;
}

function newHand(script: string, module: WebAssembly.Module): Hand {
  const worker = new Worker(script);
  const failure = new Promise<never>((_, failed) => {
    worker.onerror = (event) => {
      event.preventDefault();
      failed(new EngineError("broken", event.message));
    };
  });
  failure.catch(() => undefined); // Each run tells it.
  worker.postMessage({ module } satisfies Prepare);
  return { worker, failure };
}

/** What a worker answers to its order; it is ended then, or when the run is cancelled. */
function answerOf({ worker, failure }: Hand, order: Order, signal?: AbortSignal): Promise<Answer> {
  const answer = new Promise<Answer>((done, failed) => {
    worker.onmessage = (event: MessageEvent<Answer>) => done(event.data);
    signal?.addEventListener("abort", () => failed(signal.reason), { once: true });
    worker.postMessage(order);
  });
  return Promise.race([answer, failure]).finally(() => worker.terminate());
}

export class WasmEngine implements Engine {
  private readonly module = compiled();
  private readonly script = URL.createObjectURL(
    new Blob([textOf("plateconfig-worker")], { type: "text/javascript" }),
  );
  private readonly places = new Places(
    Math.min(mostWorkers, Math.max(1, (navigator.hardwareConcurrency ?? 2) - 1)),
  );
  private spare: Hand | undefined;

  constructor() {
    this.module.then(
      (module) => this.prepare(module),
      () => undefined, // Each run tells it.
    );
  }

  async run(args: readonly string[], files: readonly InputFile[], signal?: AbortSignal): Promise<Run> {
    signal?.throwIfAborted();
    const size = files.reduce((sum, file) => sum + file.bytes.length, 0);
    if (size > kMostBytes) throw new EngineError("tooLarge", `${size} bytes`);
    const module = await this.module;
    return this.places.within(async () => {
      signal?.throwIfAborted();
      const hand = this.spare ?? newHand(this.script, module);
      this.spare = undefined;
      try {
        return asText(await answerOf(hand, { args, files }, signal));
      } finally {
        this.prepare(module); // Not sooner: it would take time from this run.
      }
    });
  }

  /** A worker that fails before anybody needs it is as good as none. */
  private prepare(module: WebAssembly.Module): void {
    if (this.spare !== undefined) return;
    const hand = newHand(this.script, module);
    this.spare = hand;
    hand.failure.catch(() => {
      if (this.spare === hand) this.spare = undefined;
    });
  }
}
