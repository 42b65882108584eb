#include "module/entry/load_hook.h"

#include "host/common_areas.h"

#include <cstddef>

namespace bldatman {

namespace {

LoadState state;

/// Calls the getters in the order in which they are promised to be called.
void fetchCommonAreas()
{
    const std::array getters = {
        pvGetCmnBpr, pvGetCmaDic, pvGetCmaGlb, pvGetCmaMch, pvGetCmaObv, pvGetCmaSym, pvGetCmaSys, pvGetCmnDic,
        pvGetCmnDmo, pvGetCmnGlb, pvGetCmnInc, pvGetCmnIo,  pvGetCmnLoc, pvGetCmnMch, pvGetCmnMcs, pvGetCmnObv,
        pvGetCmnStk, pvGetCmnSym, pvGetCmnSys, pvGetCmnWrk, pvGetCmnDtm, pvGetCmnBox,
    };
    for (std::size_t i = 0; i < getters.size(); ++i) {
        state.commonAreas[i] = getters[i]();
    }
}

}  // namespace

int loadHook(void* moduleHandle, unsigned long reason, void* /*reserved*/)
{
    if (reason != processAttach) {
        return 1;
    }
    state.moduleHandle = moduleHandle;
    fetchCommonAreas();
    return 1;
}

const LoadState& loadState()
{
    return state;
}

}  // namespace bldatman
