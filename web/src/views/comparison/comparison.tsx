import { OpenFirst } from "../../app/parts/failure";
export function Comparison() {
  return <OpenFirst />;
}
