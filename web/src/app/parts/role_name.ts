// What a table is for, in the reader's language; the name that tables.json has stays in sight.

import type { Role } from "../../model/check";
import { kPageWords } from "../../words/page";
import type { Say } from "../../words/say";

export function roleName({ role, chineseName }: Role, say: Say): string {
  return say(kPageWords.role, role, chineseName);
}
