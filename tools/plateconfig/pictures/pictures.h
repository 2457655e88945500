#pragma once

// The pictures as JSON on the output stream; docs/pictures.md describes each. What can not be used is
// reported.

#include "plateconfig/messages/reporter.h"
#include "plateconfig/pictures/picture_job.h"
#include "plateconfig/system/streams.h"

namespace plateconfig {

void WriteCells(const PictureJob& job, const Streams& streams, Reporter& reporter);
void WriteMap(const PictureJob& job, const Streams& streams, Reporter& reporter);
void WriteChanges(const PictureJob& job, const Streams& streams, Reporter& reporter);
void WriteHoles(const PictureJob& job, const Streams& streams, Reporter& reporter);
void WriteSheet(const PictureJob& job, const Streams& streams, Reporter& reporter);

}  // namespace plateconfig
