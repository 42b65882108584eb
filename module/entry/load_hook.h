// What the library does when the system loads it: it takes the host's common-area pointers.
//
// The platform's own entry-point function is in load_on_*.cpp, linked into the shared library only.
#pragma once

namespace bldatman {

/// What the load hook stores. The pointers stay as set until the library is unloaded; nothing else in the module uses
/// them.
struct LoadState {
    void* moduleHandle = nullptr;
    void* cmnBpr = nullptr;
    void* cmaDic = nullptr;
    void* cmaGlb = nullptr;
    void* cmaMch = nullptr;
    void* cmaObv = nullptr;
    void* cmaSym = nullptr;
    void* cmaSys = nullptr;
    void* cmnDic = nullptr;
    void* cmnDmo = nullptr;
    void* cmnGlb = nullptr;
    void* cmnInc = nullptr;
    void* cmnIo = nullptr;
    void* cmnLoc = nullptr;
    void* cmnMch = nullptr;
    void* cmnMcs = nullptr;
    void* cmnObv = nullptr;
    void* cmnStk = nullptr;
    void* cmnSym = nullptr;
    void* cmnSys = nullptr;
    void* cmnWrk = nullptr;
    void* cmnDtm = nullptr;
    void* cmnBox = nullptr;
};

/// The reason code with which the system announces that a process has loaded the library.
inline constexpr unsigned long processAttach = 1;

/// The load hook. On `processAttach` it stores the handle and fetches the 22 pointers, each once, in the order of
/// `LoadState`; for every other reason it does nothing. Returns 1 in every case: the load succeeds.
int loadHook(void* moduleHandle, unsigned long reason, void* reserved);

const LoadState& loadState();

}  // namespace bldatman
