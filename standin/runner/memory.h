// The memory of the process.
#pragma once

namespace standin {

/// From here on every large block that is freed goes back to the system at once. Otherwise a million cases, held in one
/// form after another, leave holes behind that nothing fits into.
void returnLargeBlocks();

}  // namespace standin
