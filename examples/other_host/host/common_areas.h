// The pointers that the module takes while it is loaded, and which nothing reads.
#pragma once

// clang-format off
inline void* pvGetCmnBpr() { return nullptr; }
inline void* pvGetCmaDic() { return nullptr; }
inline void* pvGetCmaGlb() { return nullptr; }
inline void* pvGetCmaMch() { return nullptr; }
inline void* pvGetCmaObv() { return nullptr; }
inline void* pvGetCmaSym() { return nullptr; }
inline void* pvGetCmaSys() { return nullptr; }
inline void* pvGetCmnDic() { return nullptr; }
inline void* pvGetCmnDmo() { return nullptr; }
inline void* pvGetCmnGlb() { return nullptr; }
inline void* pvGetCmnInc() { return nullptr; }
inline void* pvGetCmnIo() { return nullptr; }
inline void* pvGetCmnLoc() { return nullptr; }
inline void* pvGetCmnMch() { return nullptr; }
inline void* pvGetCmnMcs() { return nullptr; }
inline void* pvGetCmnObv() { return nullptr; }
inline void* pvGetCmnStk() { return nullptr; }
inline void* pvGetCmnSym() { return nullptr; }
inline void* pvGetCmnSys() { return nullptr; }
inline void* pvGetCmnWrk() { return nullptr; }
inline void* pvGetCmnDtm() { return nullptr; }
inline void* pvGetCmnBox() { return nullptr; }
