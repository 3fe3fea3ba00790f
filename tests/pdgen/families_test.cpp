// Faults of the families: each rule is broken by one edit of the families that were compiled in,
// and must be reported at the edited line.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "pdgen/families/families.hpp"

namespace pdgen {
namespace {

struct Slip {
  const char *file;
  const char *before;  // stands once in the file
  const char *after;
  const char *fault;  // "key: message", reported at the line where the edit begins
};

TEST(Families, HaveNoFault) {
  Diagnostics diagnostics;
  EXPECT_EQ(load_families(embedded_families(), diagnostics).families.size(), 22u);
  EXPECT_EQ(diagnostics.text(), "");
}

TEST(Families, SlipsAreReportedAtTheirLine) {
  const Slip slips[] = {
      {"idle", "pd::set_ttl(<handle>", "pd::set_ttl(<handel>",
       "statement: <handel> is no placeholder of table"},
      {"idle", "<table>_set_ttl(", "<table>_<action>_set_ttl(",
       "function: <action> is no placeholder of table"},
      {"compare", "each field", "each fields", "each: there is no \"each fields\" here"},
      {"idle", "where ageing", "where aging", "where: aging is no condition of table"},
      {"counter", "each counter under Counters", "each counter",
       "each: nothing says under which title this stands"},
      {"idle", "device, entry, ttl)\n", "device, entrie, ttl)\n",
       "function: entrie is no parameter that is declared"},
      {"idle", "device, entry, ttl)\n", "device, entry, uint32_t*)\n",
       "function: uint32_t* is no parameter that is declared"},
      {"idle", "device, entry, ttl)\n", "device, entry?, ttl)\n",
       "function: entry has no condition, so it is never left out"},
      {"idle", "device, entry, ttl)\n", "device, entry, ttl?)\n",
       "statement: ttl may be missing, so it is written ttl? here"},
      {"entry", "{.priority = priority?}, entry)", "{.priority = priority?}, entry?)",
       "statement: entry? is no parameter with a mark"},
      {"idle", "entry, hit_state)\n  status <table>_get", "entry, 1)\n  status <table>_get",
       "statement: hit_state is not handed on"},
      {"idle", "status <table>_idle_tmo_disable(session, device)", "status idle_tmo_disable",
       "function: \"status idle_tmo_disable\" is no RESULT NAME(PARAMETERS)"},
      {"idle", "unit idle: idle.hpp", "unit idle",
       "unit: \"idle\" must be NAME: HEADERS or NAME in N: HEADERS"},
      {"idle", "each table where", "table where",
       "line: \"table where ageing\" begins no note, unit, each or program"},
      {"interface", "families frame", "families frames frame",
       "families: there is no file frames.family"},
      {"interface", "parameter ttl ", "parameter cookie void *\nparameter ttl ",
       "parameter: cookie is declared twice"},
  };
  for (const Slip &slip : slips) {
    std::vector<CatalogueFile> files = embedded_families();
    const std::string path = std::string("families/") + slip.file + ".family";
    const auto file = std::find_if(files.begin(), files.end(),
                                   [&](const CatalogueFile &row) { return row.path == path; });
    ASSERT_NE(file, files.end()) << path;
    const std::size_t at = file->text.find(slip.before);
    ASSERT_NE(at, std::string::npos) << slip.before;
    file->text.replace(at, std::string(slip.before).size(), slip.after);
    Diagnostics diagnostics;
    load_families(files, diagnostics);
    const auto end = file->text.begin() + static_cast<std::ptrdiff_t>(at);
    const auto line = 1 + std::count(file->text.begin(), end, '\n');
    const std::string text = diagnostics.text();
    EXPECT_NE(text.find(slip.fault), std::string::npos) << slip.after << "\n" << text;
    const std::string place = path + ":" + std::to_string(line) + ": ";
    const std::string above = path + ":" + std::to_string(line - 1) + ": ";  // of a statement
    EXPECT_TRUE(text.starts_with(place) || text.starts_with(above)) << slip.after << "\n" << text;
  }
}

}  // namespace
}  // namespace pdgen
