// The common areas: 22 blocks of memory that nobody looks into, each known by its address.
#include "host/common_areas.h"

#include "standin/border/host_call.h"

#include <array>

namespace {

std::array<char, 22> areas;

void* areaOf(std::size_t number, const char* getter)
{
    standin::HostCall call(standin::HostCall::LoadGetter{}, getter);
    return &areas[number];
}

}  // namespace

// clang-format off
void* pvGetCmnBpr() { return areaOf(0, "pvGetCmnBpr"); }
void* pvGetCmaDic() { return areaOf(1, "pvGetCmaDic"); }
void* pvGetCmaGlb() { return areaOf(2, "pvGetCmaGlb"); }
void* pvGetCmaMch() { return areaOf(3, "pvGetCmaMch"); }
void* pvGetCmaObv() { return areaOf(4, "pvGetCmaObv"); }
void* pvGetCmaSym() { return areaOf(5, "pvGetCmaSym"); }
void* pvGetCmaSys() { return areaOf(6, "pvGetCmaSys"); }
void* pvGetCmnDic() { return areaOf(7, "pvGetCmnDic"); }
void* pvGetCmnDmo() { return areaOf(8, "pvGetCmnDmo"); }
void* pvGetCmnGlb() { return areaOf(9, "pvGetCmnGlb"); }
void* pvGetCmnInc() { return areaOf(10, "pvGetCmnInc"); }
void* pvGetCmnIo() { return areaOf(11, "pvGetCmnIo"); }
void* pvGetCmnLoc() { return areaOf(12, "pvGetCmnLoc"); }
void* pvGetCmnMch() { return areaOf(13, "pvGetCmnMch"); }
void* pvGetCmnMcs() { return areaOf(14, "pvGetCmnMcs"); }
void* pvGetCmnObv() { return areaOf(15, "pvGetCmnObv"); }
void* pvGetCmnStk() { return areaOf(16, "pvGetCmnStk"); }
void* pvGetCmnSym() { return areaOf(17, "pvGetCmnSym"); }
void* pvGetCmnSys() { return areaOf(18, "pvGetCmnSys"); }
void* pvGetCmnWrk() { return areaOf(19, "pvGetCmnWrk"); }
void* pvGetCmnDtm() { return areaOf(20, "pvGetCmnDtm"); }
void* pvGetCmnBox() { return areaOf(21, "pvGetCmnBox"); }
// clang-format on
