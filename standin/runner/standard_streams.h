// The program's three standard streams.
#pragma once

namespace standin {

/// To be called before anything is opened or written. Afterwards the streams take bytes as they are given, a terminal
/// shows UTF-8, and the place of a stream that the program was started without is occupied by something that cannot be
/// written to: the next file that is opened would take it, and receive what was meant for the stream.
void prepareStandardStreams();

}  // namespace standin
