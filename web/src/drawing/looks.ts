// What all pictures share.

export const kFont = '"Microsoft YaHei UI", "Segoe UI", "WenQuanYi Micro Hei", sans-serif';
export const kInk = "#1a1a1a";
export const kQuiet = "#5f6670";
export const kPaper = "#ffffff";
export const kAlarm = "#a3001c";
