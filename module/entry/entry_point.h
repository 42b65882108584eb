// The library's one export.
#pragma once

/// Runs the one `BLDATMAN` command that the host has ready, on the calling thread. Returns normally whatever happens;
/// how it went shows in the host's own objects and on the standard error stream.
extern "C" void BLDATMAN();
