import { render } from "preact";

render(<p>plateconfig</p>, document.body);
