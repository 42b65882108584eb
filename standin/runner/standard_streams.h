// The program's three standard streams.
#pragma once

namespace standin {

/// Where the program was started with a standard stream closed, keeps its place occupied by something that cannot be
/// written to. Otherwise the next file that is opened would take the place, and receive what was meant for the stream.
void occupyClosedStandardStreams();

}  // namespace standin
