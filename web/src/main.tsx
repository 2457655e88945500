import { render } from "preact";
import { openEngine } from "./engine/open_engine";

render(<p>plateconfig</p>, document.body);

// A test's hook, until there is a page.
Object.assign(globalThis, { engine: openEngine() });
