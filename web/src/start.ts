/**
 * The page's first script. The others lie in the page compressed, which makes it half as large; it unpacks them and lets them go.
 * Written for browsers that are too old for the rest, to which it says so.
 */
import { fromBase64 } from "./engine/base64";
import { type EngineProblem, engineWords } from "./words/engine";

/** What build.mjs packs. */
interface Packed {
  readonly script: string;
  readonly style: string;
  readonly worker: string;
}

function add(kind: "script" | "style", text: string, inert?: { id: string; type: string }): void {
  const element = Object.assign(document.createElement(kind), inert);
  element.textContent = text;
  document.body.appendChild(element);
}

function tell(problem: EngineProblem): void {
  for (const text of [engineWords[problem].zh, engineWords[problem].en]) {
    document.body.appendChild(document.createElement("p")).textContent = text;
  }
}

async function start(): Promise<void> {
  const base64 = document.getElementById("plateconfig-page")?.textContent ?? "";
  const unpacked = new Blob([fromBase64(base64)]).stream().pipeThrough(new DecompressionStream("gzip"));
  const { script, style, worker } = (await new Response(unpacked).json()) as Packed;
  add("style", style);
  add("script", worker, { id: "plateconfig-worker", type: "text/plain" });
  add("script", script);
}

if (typeof DecompressionStream === "undefined") tell("browserTooOld");
else start().catch(() => tell("pageDamaged"));
