#include "module/entry/load_hook.h"

#include "host/common_areas.h"

namespace bldatman {

namespace {

LoadState state;

void fetchCommonAreas()
{
    state.cmnBpr = pvGetCmnBpr();
    state.cmaDic = pvGetCmaDic();
    state.cmaGlb = pvGetCmaGlb();
    state.cmaMch = pvGetCmaMch();
    state.cmaObv = pvGetCmaObv();
    state.cmaSym = pvGetCmaSym();
    state.cmaSys = pvGetCmaSys();
    state.cmnDic = pvGetCmnDic();
    state.cmnDmo = pvGetCmnDmo();
    state.cmnGlb = pvGetCmnGlb();
    state.cmnInc = pvGetCmnInc();
    state.cmnIo = pvGetCmnIo();
    state.cmnLoc = pvGetCmnLoc();
    state.cmnMch = pvGetCmnMch();
    state.cmnMcs = pvGetCmnMcs();
    state.cmnObv = pvGetCmnObv();
    state.cmnStk = pvGetCmnStk();
    state.cmnSym = pvGetCmnSym();
    state.cmnSys = pvGetCmnSys();
    state.cmnWrk = pvGetCmnWrk();
    state.cmnDtm = pvGetCmnDtm();
    state.cmnBox = pvGetCmnBox();
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
