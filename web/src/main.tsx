import { render } from "preact";
import { Page } from "./app/app";
import "./app/styles.css";
import { openEngine } from "./engine/open_engine";

render(<Page engine={openEngine()} />, document.body);
