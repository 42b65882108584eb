// Contract of the host's common library: one getter per common area, called once each while the library is loaded.
// The pointers stay the host's and stay valid as long as the host runs; what lies behind them is the host's affair.
#pragma once

void* pvGetCmnBpr();
void* pvGetCmaDic();
void* pvGetCmaGlb();
void* pvGetCmaMch();
void* pvGetCmaObv();
void* pvGetCmaSym();
void* pvGetCmaSys();
void* pvGetCmnDic();
void* pvGetCmnDmo();
void* pvGetCmnGlb();
void* pvGetCmnInc();
void* pvGetCmnIo();
void* pvGetCmnLoc();
void* pvGetCmnMch();
void* pvGetCmnMcs();
void* pvGetCmnObv();
void* pvGetCmnStk();
void* pvGetCmnSym();
void* pvGetCmnSys();
void* pvGetCmnWrk();
void* pvGetCmnDtm();
void* pvGetCmnBox();
