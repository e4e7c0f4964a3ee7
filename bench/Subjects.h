// What is measured: each function adds the rows of one subject.
#pragma once

#include "RatioTable.h"

namespace bench {

void AddTextLoad(CRatioTable& table);
void AddXmlLoad(CRatioTable& table);
void AddWholeProcess(CRatioTable& table);
void AddQueries(CRatioTable& table);
void AddLibraryLoad(CRatioTable& table);
void AddGrowth(CRatioTable& table);
void AddCheck(CRatioTable& table);
void AddDifferences(CRatioTable& table);
void AddCInterface(CRatioTable& table);

}  // namespace bench
