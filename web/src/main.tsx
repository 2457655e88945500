import { render } from "preact";
import { Page } from "./app/app";
import "./app/styles.css";
import { CountedEngine } from "./engine/counted_engine";
import { openEngine } from "./engine/open_engine";

// A place of its own: rendering takes over everything that lies in its element, and the body holds the engine.
const place = document.createElement("div");
place.id = "page";
document.body.append(place);
render(<Page engine={new CountedEngine(openEngine(), place)} />, place);
