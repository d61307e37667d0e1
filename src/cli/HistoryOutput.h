#pragma once
#include <ostream>
#include <vector>

#include "commit/ReportRow.h"
#include "history/HistoryList.h"

namespace nomra::cli {

// "black" when the record's new name still exists, so it can be undone;
// "red" when it doesn't.
const char* HistoryState(const history::HistoryRow& row);

// One line a record, numbered in file order, then the counts:
//   1  black  2004-03-15, 14:23:05  /home/u/Fotos/  img1.jpg -> Urlaub 01.jpg
//   1 record, 1 black, 0 red
void WriteHistoryTable(std::ostream& out, const history::HistoryList& list);

// {"records":[{"number":N,"time":…,"date":…,"folder":…,"oldName":…,
//   "newName":…,"state":"black"|"red"},…],"black":B,"red":R,"failures":[…]}
// `failures` holds the undos that didn't happen, as the commit's report rows.
void WriteHistoryJson(std::ostream& out, const history::HistoryList& list,
                      const std::vector<commit::ReportRow>& failures);

}  // namespace nomra::cli
