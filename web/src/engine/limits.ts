/** As many bytes of files as a run can take: the module's memory has to hold them more than once. */
export const kMostMegabytes = 256;
export const kMostBytes = kMostMegabytes * 2 ** 20;
