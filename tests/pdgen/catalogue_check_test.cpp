// Faults of a catalogue: each rule is broken by one edit of the tiny catalogue, which must be
// reported at the right place, with the right words, and alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "pdgen/check/check.hpp"
#include "pdgen/load/load.hpp"

namespace pdgen {
namespace {

const std::string kSourceDir = PDGEN_SOURCE_DIR;

// The files of the tiny catalogue, under the directory name "tiny".
std::vector<CatalogueFile> tiny_files() {
  Diagnostics diagnostics;
  auto files = read_files(kSourceDir + "/tests/pdgen/fixtures/tiny", ".toml", diagnostics);
  EXPECT_EQ(diagnostics.text(), "");
  for (CatalogueFile &file : files) {
    file.path = "tiny" + file.path.substr(file.path.rfind('/'));
  }
  return files;
}

CatalogueFile &file_of(std::vector<CatalogueFile> &files, const std::string &name) {
  const auto found = std::find_if(files.begin(), files.end(), [&](const CatalogueFile &file) {
    return file.path == "tiny/" + name;
  });
  EXPECT_NE(found, files.end()) << name;
  return *found;
}

// The position of a text that stands exactly once in the file.
std::size_t find_once(const CatalogueFile &file, const std::string &text) {
  const std::size_t position = file.text.find(text);
  EXPECT_NE(position, std::string::npos) << file.path << " lacks " << text;
  EXPECT_EQ(file.text.find(text, position + 1), std::string::npos)
      << file.path << " has twice " << text;
  return std::min(position, file.text.size());
}

void replace(std::vector<CatalogueFile> &files, const std::string &name, const std::string &before,
             const std::string &after) {
  CatalogueFile &file = file_of(files, name);
  file.text.replace(find_once(file, before), before.size(), after);
}

std::string line_of(const CatalogueFile &file, const std::string &text) {
  const auto end = file.text.begin() + static_cast<std::ptrdiff_t>(find_once(file, text));
  return std::to_string(1 + std::count(file.text.begin(), end, '\n'));
}

struct Slip {
  const char *name;
  const char *file;
  const char *before;
  std::string after;
  // Text of the edited file on the line that the fault must name; "file: text" if it is another
  // file's.
  const char *at;
  const char *fault;  // "key: message"
};

void PrintTo(const Slip &slip, std::ostream *out) { *out << slip.name; }

class CatalogueSlip : public testing::TestWithParam<Slip> {};

TEST_P(CatalogueSlip, IsReportedAloneAtItsLine) {
  const Slip &slip = GetParam();
  std::vector<CatalogueFile> files = tiny_files();
  replace(files, slip.file, slip.before, slip.after);
  std::string at = slip.at;
  std::string at_file = slip.file;
  if (const std::size_t colon = at.find(".toml: "); colon != std::string::npos) {
    at_file = at.substr(0, colon + 5);
    at = at.substr(colon + 7);
  }
  const CatalogueFile &file = file_of(files, at_file);
  const LoadResult result = load_program(files);
  EXPECT_FALSE(result.program);
  EXPECT_EQ(result.diagnostics.text(),
            file.path + ":" + line_of(file, at) + ": " + slip.fault + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CatalogueSlip,
    testing::Values(
        Slip{"Syntax", "hashes.toml", "list = 0x21000001", "list = = 1", "list = = 1",
             "syntax: Error while parsing value: could not determine value type"},
        Slip{"SyntaxDefinedTwice", "program.toml", "name = \"tiny\"",
             "name = \"tiny\"\nname = \"t\"", "name = \"t\"",
             "syntax: Error while parsing key-value pair: cannot redefine existing string 'name'"},
        Slip{"UnknownKeyOfRow", "tables.toml", "width = 20 }", "width = 20, bytes = 3 }",
             "bytes = 3", "table.key.bytes: field meta_flowId of table flows has no such key"},
        Slip{"UnknownKeyOfFile", "stateful.toml", "registers = [", "regs = []\nregisters = [",
             "regs = []", "regs: stateful.toml has no such key"},
        Slip{"MissingKey", "tables.toml", "name = \"fib6\"\nhandle = 0x01000004\n",
             "name = \"fib6\"\n", "[[table]]\nname = \"fib6\"",
             "table.handle: table fib6 lacks this key"},
        Slip{"MissingKeyOfField", "tables.toml", "{ field = \"l3_path\", width = 14,",
             "{ field = \"l3_path\",", "l3_path",
             "table.key.width: field l3_path of table paths lacks this key"},
        Slip{"TextForNumber", "tables.toml", "width = 20 }", "width = \"20\" }", "\"20\"",
             "table.key.width: field meta_flowId of table flows has a string here, which must be "
             "a whole number"},
        Slip{"NumberForFlag", "tables.toml", "handle = 0x2000000a, default = true",
             "handle = 0x2000000a, default = 1", "default = 1",
             "table.actions.default: action discard of table hops has a whole number here, which "
             "must be true or false"},
        Slip{"TextForRow", "value_sets.toml", "{ name = \"trunk_ports\", handle = 0x101 },",
             "\"trunk_ports\"", "\"trunk_ports\"",
             "value_sets: value_sets.toml has a string here, which must be a table"},
        Slip{"NumberForReference", "tables.toml", "actions = [\"police\"]",
             "actions = [\"police\", 7]", ", 7]",
             "table.resources.actions: resource flowRate of table flows has a whole number here, "
             "which must be a string"},
        Slip{"NegativeNumber", "digests.toml", "offset = 0", "offset = -1", "offset = -1",
             "digest.fields.offset: -1 of field eth_src of digest arrival must be from 0 to 65535"},
        Slip{"BadIdentifier", "actions.toml", "name = \"mark\"", "name = \"2nd-mark\"", "2nd-mark",
             "actions.params.name: \"2nd-mark\" is no identifier: a letter or '_', then letters, "
             "digits and '_'; no word or macro of C or C++"},
        Slip{"MacroOfTheContract", "actions.toml", "name = \"mark\"", "name = \"BF_ALL_PIPES\"",
             "BF_ALL_PIPES",
             "actions.params.name: \"BF_ALL_PIPES\" is no identifier: a letter or '_', then "
             "letters, "
             "digits and '_'; no word or macro of C or C++"},
        Slip{"KeywordOfCpp20", "actions.toml", "name = \"mark\"", "name = \"requires\"", "requires",
             "actions.params.name: \"requires\" is no identifier: a letter or '_', then letters, "
             "digits and '_'; no word or macro of C or C++"},
        Slip{"PredefinedMacro", "tables.toml", "field = \"meta_slice\"", "field = \"errno\"",
             "errno",
             "table.key.field: \"errno\" is no identifier: a letter or '_', then letters, digits "
             "and "
             "'_'; no word or macro of C or C++"},
        Slip{"MacroOfIntegerTypes", "snapshots.toml", "name = \"slice\"", "name = \"INT8_MAX\"",
             "INT8_MAX",
             "layout.fields.name: \"INT8_MAX\" is no identifier: a letter or '_', then letters, "
             "digits and '_'; no word or macro of C or C++"},
        Slip{"NoRows", "value_sets.toml", "{ name = \"trunk_ports\", handle = 0x101 },", "",
             "value_sets = [", "value_sets: value_sets.toml lists nothing here"},
        Slip{"NarrowIndex", "actions.toml", "\"rateCell\", width = 32", "\"rateCell\", width = 16",
             "\"rateCell\", width = 16",
             "actions.params.width: parameter rateCell names a cell, so it has 32 bits, not 16"},
        Slip{"TextNotPrintable", "labels.toml", "label = \"dead\"", "label = \"d\\tead\"",
             "d\\tead",
             "label.items.label: the text of item meta_dead of label filter must be printable "
             "ASCII and not empty"}));

INSTANTIATE_TEST_SUITE_P(
    NamesAndHandles, CatalogueSlip,
    testing::Values(
        Slip{"TableTwice", "tables.toml", "name = \"seen\"", "name = \"portMap\"",
             "name = \"portMap\"\nhandle = 0x0100000b",
             "table.name: the name portMap is taken at tiny/tables.toml:5"},
        Slip{"FieldTwice", "tables.toml", "\"meta_slice\", width = 3", "\"eth_dstOui\", width = 24",
             "\"eth_dstOui\", width = 24 }",
             "table.key.field: the name eth_dstOui is taken at tiny/tables.toml:104"},
        Slip{"ActionTwiceInTable", "tables.toml", "\"pass\",   handle = 0x20000002",
             "\"sendTo\", handle = 0x20000002", "0x20000002",
             "table.actions.action: the name sendTo is taken at tiny/tables.toml:11"},
        Slip{"ParameterTwice", "actions.toml", "name = \"queue\"", "name = \"port\"", "sendTo",
             "actions.params.name: the name port is taken at tiny/actions.toml:7"},
        Slip{"MeterNamedAsCounter", "stateful.toml", "meters = [",
             "meters = [\n  { name = \"flowCount\", handle = 0x05000004, unit = \"bytes\" },",
             "0x05000004", "meters.name: the name flowCount is taken at tiny/stateful.toml:3"},
        Slip{"HandleTwice", "tables.toml", "handle = 0x20000007", "handle = 0x20000003",
             "handle = 0x20000003, default = true },\n]\n\n[[table]]\nname = \"fib6\"",
             "table.actions.handle: 0x20000003 of action pass of table fib4 is the handle of "
             "action pass of table filter at tiny/tables.toml:33"},
        Slip{"DigestHandleOfFieldList", "digests.toml", "0x21000002", "0x21000001", "0x21000001",
             "digest.handle: 0x21000001 of digest arrival is the handle of field list of hash "
             "flowHash at tiny/hashes.toml:4"},
        Slip{"HandleOfOtherKind", "profiles.toml", "0x03000001", "0x02000001", "0x02000001",
             "profile.selector_handle: 0x2000001 of profile pathMembers must lie in 0x03000000 to "
             "0x03ffffff"},
        Slip{"ValueTwice", "actions.toml", "value = 9", "value = 8", "seenBit",
             "actions.value: action seenBit has the value 8, which is that of action setMember"},
        Slip{"ValueGap", "actions.toml", "value = 9", "value = 10", "seenBit",
             "actions.value: action seenBit has the value 10, but the next free one is 9"},
        Slip{"TableNamedAsAction", "tables.toml", "name = \"finish\"", "name = \"discard\"",
             "name = \"discard\"",
             "table.name: table discard and action discard at tiny/actions.toml:6 make the same "
             "beginning of C names p4_pd_tiny_discard"},
        Slip{"FieldNamedAsMask", "tables.toml", "meta_slice", "eth_dstOui_mask", "eth_dstOui_mask",
             "table.key.field: field eth_dstOui_mask of table flood and field eth_dstOui of table "
             "flood at tiny/tables.toml:104 make the same record member eth_dstOui_mask"},
        Slip{"FieldShownAsAnother", "tables.toml", "l3_vrf", "ip4__dst", "\"ip4_dst\", width",
             "table.key.field: field ip4_dst of table fib4 and field ip4__dst of table fib4 at "
             "tiny/tables.toml:45 make the same tool name ip4Dst"},
        Slip{"FieldNamedAsHeader", "tables.toml", "{ field = \"l3_vrf\",  width = 8 }",
             "{ field = \"l3\",  width = 8 }, { field = \"l3_valid\",  width = 1 }", "l3_valid",
             "table.key.field: field l3_valid of table fib4 and field l3 of table fib4 at "
             "tiny/tables.toml:45 make the same function p4_pd_tiny_fib4_l3_width"}));

INSTANTIATE_TEST_SUITE_P(
    References, CatalogueSlip,
    testing::Values(
        Slip{"ActionOfTable", "tables.toml", "\"setRouter\", handle", "\"setRoute\", handle",
             "setRoute", "table.actions.action: table hops names setRoute, which is no action"},
        Slip{"ActionOfProfile", "profiles.toml", "setMember", "setMembers", "setMembers",
             "profile.actions.action: profile pathMembers names setMembers, which is no action"},
        Slip{"Profile", "tables.toml", "profile = \"pathMembers\"", "profile = \"paths\"",
             "profile = \"paths\"", "table.profile: table paths names paths, which is no profile"},
        Slip{"Resource", "tables.toml", "resource = \"seenReg\"", "resource = \"seen\"",
             "resource = \"seen\"",
             "table.resources.resource: table seen names seen, which is no counter, meter or "
             "register"},
        Slip{"ActionOfResource", "tables.toml", "actions = [\"countOnly\"]", "actions = [\"pass\"]",
             "actions = [\"pass\"]",
             "table.resources.actions: resource flowRate of table flows names pass, which is no "
             "action of the table"},
        Slip{"TableOfCounter", "stateful.toml", "{ name = \"flowCount\",  handle = 0x04000002 }",
             "{ name = \"flowCount\",  handle = 0x04000002, table = \"flow\" }", "\"flow\"",
             "counters.table: counter flowCount names flow, which is no table"},
        Slip{"CellOfRegister", "actions.toml", "index_of = [\"sampleRate\"]",
             "index_of = [\"sampleRate\", \"tickReg\"]", "tickReg",
             "actions.params.index_of: parameter rateCell of action sample names tickReg, which "
             "is no counter or meter"},
        Slip{"TableOfLabel", "labels.toml", "table = \"filter\"", "table = \"filters\"", "filters",
             "label.table: a label names filters, which is no table"},
        Slip{"FieldOfLabel", "labels.toml", "field = \"meta_layer4\"", "field = \"meta_layer3\"",
             "meta_layer3",
             "label.items.field: label filter names meta_layer3, which is no key field of the "
             "table"},
        Slip{"HintOfParameter", "actions.toml", "hint = \"vport\"", "hint = \"vlan\"", "vlan",
             "actions.params.hint: \"vlan\" of parameter egress of action setMember must be one "
             "of mac, v4addr, vport"},
        Slip{"FieldOfHint", "fields.toml", "\"ip4_dst\"", "\"ip4_dest\"", "ip4_dest",
             "hints.fields: ip4_dest is no key field of any table"},
        Slip{"TableOfRoutes", "program.toml", "\"fib6\"", "\"fib5\"", "fib5",
             "routes.tables: routes names fib5, which is no table"}));

INSTANTIATE_TEST_SUITE_P(
    Keys, CatalogueSlip,
    testing::Values(
        Slip{"OrderOfStranger", "tables.toml", "\"meta_dead\", \"fw_dead\", \"tag_0__valid\"",
             "\"meta_dead\", \"fw_dead\", \"tag_0__valid\", \"tag_1__valid\"", "tag_1__valid",
             "table.key_order: tag_1__valid is no key field of table filter"},
        Slip{"OrderTwice", "tables.toml", "\"meta_dead\", \"fw_dead\",",
             "\"meta_dead\", \"fw_dead\", \"meta_dead\",", "key_order",
             "table.key_order: meta_dead stands twice in the key order of table filter"},
        Slip{"OrderIncomplete", "tables.toml", "\"meta_dead\", \"fw_dead\",", "\"meta_dead\",",
             "key_order", "table.key_order: fw_dead is missing from the key order of table filter"},
        Slip{"WidthZero", "tables.toml", "width = 20 }", "width = 0 }", "width = 0",
             "table.key.width: 0 bits of field meta_flowId of table flows must be 1 to 32, or 128"},
        Slip{"WidthBeyondWord", "tables.toml", "width = 20 }", "width = 33 }", "width = 33",
             "table.key.width: 33 bits of field meta_flowId of table flows must be 1 to 32, or "
             "128"},
        Slip{"ParameterBeyondWord", "actions.toml", "name = \"mark\", width = 1",
             "name = \"mark\", width = 33", "width = 33",
             "actions.params.width: 33 of parameter mark of action police must be from 1 to 32"},
        Slip{"KeyBitsZero", "tables.toml", "key_bits = 0x7f", "key_bits = 0", "key_bits = 0 ",
             "table.key.key_bits: 0x0 of field ig_intr_md_in_port of table portMap must be some "
             "of the 9 bits 0x1ff"},
        Slip{"KeyBitsTooWide", "tables.toml", "key_bits = 0x7f", "key_bits = 0x200",
             "key_bits = 0x200",
             "table.key.key_bits: 0x200 of field ig_intr_md_in_port of table portMap must be some "
             "of the 9 bits 0x1ff"},
        Slip{"WideKeyBitsZero", "tables.toml", "0xffff0000000000000000000000000000", "0x0",
             "\"0x0\"", "table.key.key_bits: the key bits of field ip6_dst of table filter are 0"},
        Slip{"WideKeyBitsTooLong", "tables.toml", "0xffff0000000000000000000000000000",
             "0x1ffff0000000000000000000000000000", "0x1ffff",
             "table.key.key_bits: the key bits of field ip6_dst of table filter must be a string, "
             "0x and 1 to 32 hexadecimal digits"},
        Slip{"StorageTooNarrow", "tables.toml", "storage = 32", "storage = 8", "storage = 8",
             "table.key.storage: 8 bits of field l3_hop of table hops cannot hold its 14 bits"},
        Slip{"StorageOdd", "actions.toml", "storage = 32", "storage = 24", "storage = 24",
             "actions.params.storage: 24 bits of parameter hop of action setHop must be 8, 16 or "
             "32"},
        Slip{"StorageOfWideField", "tables.toml", "width = 128, match = \"lpm\"",
             "width = 128, match = \"lpm\", storage = 32", "match = \"lpm\", storage",
             "table.key.storage: field ip6_dst of table fib6 is 128 bits wide and always stored "
             "as 16 bytes"},
        Slip{"TwoLpmFields", "tables.toml", "\"l3_vrf\",  width = 8",
             "\"l3_vrf\",  width = 8, match = \"lpm\"", "ip4_dst\", width = 32, match = \"lpm\"",
             "table.key.match: field ip4_dst of table fib4 is lpm, as is l3_vrf; a key has at "
             "most one lpm field"},
        Slip{"LpmAmongTernary", "tables.toml", "\"meta_slice\", width = 3",
             "\"meta_slice\", width = 3, match = \"lpm\"", "meta_slice",
             "table.key.match: field meta_slice of table flood is lpm, but the key has ternary "
             "fields"},
        Slip{"MatchUnknown", "tables.toml", "width = 20 }", "width = 20, match = \"range\" }",
             "range",
             "table.key.match: \"range\" of field meta_flowId of table flows must be one of "
             "ternary, lpm"},
        Slip{"KeylessWithTwoActions", "tables.toml",
             "{ action = \"sendTo\", handle = 0x20000011, default = true },",
             "{ action = \"sendTo\", handle = 0x20000011, default = true },\n"
             "{ action = \"pass\", handle = 0x20000014 },",
             "actions = [\n  { action = \"sendTo\", handle = 0x20000011",
             "table.actions: table finish has no key and must have one action, a default one; it "
             "has 2 actions, 1 of them default"},
        Slip{"KeylessWithoutDefault", "tables.toml", "handle = 0x20000011, default = true",
             "handle = 0x20000011", "actions = [\n  { action = \"sendTo\", handle = 0x20000011",
             "table.actions: table finish has no key and must have one action, a default one; it "
             "has 1 actions, 0 of them default"},
        Slip{"KeylessAgeing", "tables.toml", "handle = 0x0100000c",
             "handle = 0x0100000c\nidle_time = true",
             "idle_time = true\nactions = [\n  { action = \"sendTo\"",
             "table.idle_time: table finish has no key, so no entries that could age"},
        Slip{"KeylessWithProfile", "tables.toml",
             "actions = [\n  { action = \"sendTo\", handle = 0x20000011, default = true },\n]",
             "profile = \"pathMembers\" # keyless", "# keyless",
             "table.profile: table finish has no key, so no entries that could point into a "
             "profile"},
        Slip{"ProfileAndActions", "tables.toml", "profile = \"pathMembers\"",
             "profile = \"pathMembers\"\n"
             "actions = [{ action = \"pass\", handle = 0x20000014 }]",
             "profile = \"pathMembers\"",
             "table.profile: table paths has both a profile and 1 actions"},
        Slip{"NeitherProfileNorActions", "tables.toml", "profile = \"pathMembers\"\n", "",
             "[[table]]\nname = \"paths\"",
             "table.actions: table paths has neither actions nor a profile"}));

INSTANTIATE_TEST_SUITE_P(
    Resources, CatalogueSlip,
    testing::Values(
        Slip{"IndexNoParameter", "tables.toml", "resource = \"floodRate\", tag = \"meter_spec\"",
             "resource = \"floodRate\", index = \"cell\"",
             "index = \"cell\", in = [\"add\", \"modify\", \"default\"] },\n]\n\n[[table]]\nname = "
             "\"sampling\"",
             "table.resources.index: resource floodRate of table flood has no cell: action pass "
             "has no parameter cell"},
        Slip{"IndexOfOtherResource", "actions.toml", "[\"flowCount\", \"flowRate\"]",
             "[\"flowCount\"]", "tables.toml: actions = [\"police\"]",
             "table.resources.index: resource flowRate of table flows has no cell: parameter cell "
             "of action police does not list it in index_of"},
        Slip{"IndexLost", "tables.toml",
             "  { resource = \"sampleRate\", index = \"rateCell\", in = [\"add\", \"modify\"] },",
             "", "handle = 0x2000000e",
             "table.resources: table sampling has no resource item for sampleRate, whose cell "
             "parameter rateCell of action sample names"},
        Slip{"DetachedCell", "tables.toml", "resource = \"flowCount\", index = \"cell\"",
             "resource = \"flowCount\", index = \"cell\", tag = \"detach\"", "flowCount",
             "table.resources.index: resource flowCount of table flows is detached and needs no "
             "cell"},
        Slip{"MeterSpecOfIndirectMeter", "tables.toml",
             "resource = \"sampleRate\", index = \"rateCell\"",
             "resource = \"sampleRate\", index = \"rateCell\", tag = \"meter_spec\"",
             "index = \"rateCell\"",
             "table.resources.tag: resource sampleRate of table sampling is tagged meter_spec but "
             "is no direct meter of the table"},
        Slip{"DirectCounterNotListed", "stateful.toml",
             "{ name = \"flowCount\",  handle = 0x04000002 },",
             "{ name = \"flowCount\",  handle = 0x04000002 },\n"
             "{ name = \"hopCount\",  handle = 0x04000003, table = \"hops\" },",
             "hopCount",
             "counters.table: hopCount belongs to the entries of table hops, whose resources do "
             "not list it"},
        Slip{"DirectCounterOfOtherTable", "tables.toml", "{ resource = \"tickReg\",",
             "{ resource = \"filterHits\", in = [\"add\"] },\n  { resource = \"tickReg\",",
             "resource = \"filterHits\", in = [\"add\"]",
             "table.resources.resource: resource filterHits of table ticks belongs to the entries "
             "of table filter"},
        Slip{"SentTwice", "tables.toml", "{ resource = \"tickReg\",",
             "{ resource = \"tickReg\", in = [\"modify\"] },\n  { resource = \"tickReg\",",
             "resource = \"tickReg\", in = [\"add\", \"modify\", \"default\"]",
             "table.resources.in: resource tickReg of table ticks is sent twice in modify of "
             "action seenBit"},
        Slip{"MoreThanTheListHolds", "tables.toml", "{ resource = \"tickReg\",",
             "{ resource = \"seenReg\", in = [\"add\"] },\n"
             "  { resource = \"flowCount\", in = [\"add\"] },\n"
             "  { resource = \"flowRate\", in = [\"add\"] },\n"
             "  { resource = \"sampleRate\", in = [\"add\"] },\n"
             "  { resource = \"tickReg\",",
             "tickReg",
             "table.resources: table ticks sends 5 resources in add of action seenBit; the list "
             "holds 4"},
        Slip{"ResourcesOfProfile", "tables.toml", "profile = \"pathMembers\"",
             "profile = \"pathMembers\"\nresources = [{ resource = \"seenReg\", in = [\"add\"] }]",
             "resources = [{",
             "table.resources: table paths has a profile; resource items go with actions"},
        Slip{"KeylessAdd", "tables.toml", "resource = \"seenReg\", in = [\"default\"]",
             "resource = \"seenReg\", in = [\"default\", \"add\"]", "seenReg",
             "table.resources.in: resource seenReg of table seen is sent in add, but a table "
             "without a key has no entries"},
        Slip{"NoOperation", "tables.toml", "resource = \"seenReg\", in = [\"default\"]",
             "resource = \"seenReg\", in = []", "seenReg",
             "table.resources.in: resource seenReg of table seen names nothing here"},
        Slip{"OperationUnknown", "tables.toml", "resource = \"seenReg\", in = [\"default\"]",
             "resource = \"seenReg\", in = [\"default\", \"delete\"]", "seenReg",
             "table.resources.in: \"delete\" of resource seenReg of table seen must be one of "
             "add, modify, default"},
        Slip{"RegisterWidth", "stateful.toml", "width = 32", "width = 24", "width = 24",
             "registers.width: 24 bits of register tickReg must be 1, 8, 16 or 32"},
        Slip{"MeterUnit", "stateful.toml", "unit = \"packets\"", "unit = \"frames\"", "frames",
             "meters.unit: \"frames\" of meter sampleRate must be one of bytes, packets"}));

// Rows of `count` members of 32 bits.
std::string members(const char *key, int count) {
  std::string rows;
  for (int i = 0; i < count; ++i) {
    rows += "{ " + std::string(key) + " = \"x" + std::to_string(i) + "\", width = 32 }, ";
  }
  return rows;
}

INSTANTIATE_TEST_SUITE_P(
    Limits, CatalogueSlip,
    testing::Values(
        Slip{"ActionData", "actions.toml", "\"discard\",   value = 1",
             "\"discard\", value = 1, params = [" + members("name", 1025) + "]", "discard",
             "actions.params: the data of action discard has 4100 bytes; at most 4096 can be"},
        Slip{"Key", "tables.toml", "{ field = \"meta_flowId\", width = 20 },",
             members("field", 1025), "name = \"flows\"",
             "table.key: the key of table flows has 4100 bytes; at most 4096 can be"},
        Slip{"Cells", "actions.toml", "\"egress\", width = 9, hint = \"vport\"",
             "\"egress\", width = 32, index_of = [\"flowCount\", \"flowRate\", \"sampleRate\"]",
             "egress",
             "actions.params.index_of: parameter egress of action setMember names cells of 3 "
             "resources; at most 2 can be"},
        Slip{"DigestSize", "digests.toml", "size = 9", "size = 65536", "size = 65536",
             "digest.size: 65536 of digest arrival must be from 1 to 65535"},
        Slip{"FieldOfTwoWidths", "tables.toml", "\"meta_slice\", width = 3",
             "\"meta_layer4\", width = 3", "\"meta_layer4\", width = 3",
             "table.key.width: field meta_layer4 of table flood has 3 bits, but 16 at "
             "tiny/tables.toml:24"},
        Slip{"HintOfOtherWidth", "fields.toml", "\"ip4_dst\"", "\"ip4_dst\", \"meta_slice\"",
             "meta_slice",
             "hints.hint: this hint goes with 32 bits, but field meta_slice of table flood has 3"},
        Slip{"HintOfParameterOfOtherWidth", "actions.toml", "\"gateIp\", width = 32",
             "\"gateIp\", width = 31", "gateIp",
             "actions.params.hint: the hint of parameter gateIp of action setRouter goes with 32 "
             "bits, not 31"},
        Slip{"MissingPart", "snapshots.toml", "name = \"ip4_src\", bytes = 4",
             "name = \"eth_src_1\", bytes = 2", "eth_src_1",
             "layout.fields.name: eth_src_1 is a part of eth_src, whose part eth_src_0 is missing "
             "in layout ingress"},
        Slip{"PartBeyondWhole", "snapshots.toml", "name = \"ip4_src\", bytes = 4",
             "name = \"eth_src_0\", bytes = 4 }, { name = \"eth_src_1\", bytes = 4", "eth_src_1",
             "layout.fields.bytes: eth_src_1, 4 bytes of eth_src from byte 4, ends beyond it"},
        Slip{"TextBeyondWidth", "labels.toml", "value = 0xfff", "value = 0x1000", "value = 0x1000",
             "label.items.texts.value: 0x1000 of field tag_0__tagId of table filter is beyond its "
             "12 bits"},
        Slip{"LabelWithoutCounter", "stateful.toml", "0x04000001, table = \"filter\"", "0x04000001",
             "labels.toml: table = \"filter\"",
             "label.table: table filter has no counter of its entries, so nothing to label"},
        Slip{"NameOfGeneratedCode", "hashes.toml", "\"flowHash\"", "\"names\"", "\"names\"",
             "hashes.name: hash names has a name that the generated code uses itself"}));

INSTANTIATE_TEST_SUITE_P(
    Texts, CatalogueSlip,
    testing::Values(
        Slip{"DigestFieldBeyondEntry", "digests.toml", "size = 9", "size = 8", "in_port",
             "digest.fields.bytes: field in_port of digest arrival ends at byte 9, beyond the 8 "
             "bytes of an entry"},
        Slip{"DigestFieldsOverlap", "digests.toml", "offset = 7", "offset = 5", "in_port",
             "digest.fields.offset: field in_port of digest arrival begins at byte 5 inside field "
             "eth_src, which ends before byte 6"},
        Slip{"FlagWithoutBit", "labels.toml", "bit = 0x8, ", "", "meta_bits",
             "label.items.bit: field meta_bits of table filter: the field has 4 bits, so a flag "
             "must name its bit"},
        Slip{"FlagBitOutsideKeyBits", "labels.toml", "bit = 0x8", "bit = 0x4", "meta_bits",
             "label.items.bit: field meta_bits of table filter: 0x4 must be one bit of the key "
             "bits 0x8"},
        Slip{"FlagOfExactField", "labels.toml",
             "kind = \"exact\", field = \"ig_intr_md_in_port\", format = \"Port\", digits = 3",
             "kind = \"flag\", field = \"ig_intr_md_in_port\", label = \"Port\"", "Port",
             "label.items.field: field ig_intr_md_in_port of table filter: a flag needs a ternary "
             "field of at most 32 bits"},
        Slip{"ExactOfTernaryField", "labels.toml", "kind = \"number\", field = \"meta_layer4\"",
             "kind = \"exact\", field = \"meta_layer4\"", "meta_layer4",
             "label.items.field: field meta_layer4 of table filter: an exact number needs an "
             "exact field of at most 32 bits"},
        Slip{"HalfOfMac", "labels.toml", "station = \"eth_dstStation\"",
             "station = \"tag_0__tagId\"", "station",
             "label.items.station: field tag_0__tagId of table filter: this part of an address "
             "needs a ternary field of 24 bits"},
        Slip{"AddressOfOtherWidth", "labels.toml", "kind = \"v4addr\"", "kind = \"v6addr\"",
             "ip4_src",
             "label.items.field: field ip4_src of table filter: this part of an address needs a "
             "ternary field of 128 bits"},
        Slip{"KeyOfOtherItemKind", "labels.toml", "label = \"src\"", "label = \"src\", bit = 1",
             "bit = 1", "label.items.bit: item ip4_src of label filter has no such key"},
        Slip{"TwoTextsForAValue", "labels.toml", "value = 0xfff", "value = 0", "untagged",
             "label.items.texts.value: item tag_0__tagId of label filter has two texts for 0x0"},
        Slip{"MaskOfNoTexts", "labels.toml", "digits = 4", "digits = 4, texts_mask = 1",
             "digits = 4",
             "label.items.texts_mask: item meta_layer4 of label filter has a texts_mask but no "
             "texts"},
        Slip{"RoutesIntoAnotherTable", "program.toml", "\"fib6\"", "\"hops\"", "hops",
             "routes.tables: hops must be a longest-prefix table with the action setHop"},
        Slip{"HintForNothing", "fields.toml", ", width = 128", "", "v6addr",
             "hints.hint: hint v6addr needs fields, suffixes or a width to go with"},
        Slip{"SnapshotFieldSize", "snapshots.toml", "name = \"ip4_src\", bytes = 4",
             "name = \"ip4_src\", bytes = 3", "ip4_src",
             "layout.fields.bytes: 3 bytes of field ip4_src of layout ingress must be 1, 2 or 4"},
        Slip{"SnapshotFieldIsPadding", "snapshots.toml", "name = \"slice\"", "name = \"reserved\"",
             "name = \"reserved\"",
             "layout.fields.name: reserved is the name of a record's padding"},
        Slip{"SnapshotBeyondRecord", "snapshots.toml", "record_bytes = 16", "record_bytes = 7",
             "\"in_port\", bytes = 2 },\n]\n\n[[layout]]\nname = \"ingress\"",
             "capture: field in_port ends at byte 8, beyond the 7 bytes of a record"}));

TEST(CatalogueFaults, AllAreReportedSortedByFileAndLine) {
  std::vector<CatalogueFile> files = tiny_files();
  replace(files, "tables.toml", "name = \"fib6\"", "name = \"fib4\"");
  replace(files, "tables.toml", "handle = 0x01000002", "handle = 0x02000002");
  replace(files, "tables.toml", "resource = \"seenReg\"", "resource = \"unseenReg\"");
  replace(files, "stateful.toml", "unit = \"packets\"", "units = \"packets\"");
  replace(files, "actions.toml", "value = 9", "value = 11");
  const LoadResult result = load_program(files);
  EXPECT_FALSE(result.program);
  EXPECT_EQ(result.diagnostics.text(),
            "tiny/actions.toml:14: actions.value: action seenBit has the value 11, but the next "
            "free one is 9\n"
            "tiny/program.toml:5: routes.tables: routes names fib6, which is no table\n"
            "tiny/stateful.toml:9: meters.unit: meter sampleRate lacks this key\n"
            "tiny/stateful.toml:9: meters.units: meter sampleRate has no such key\n"
            "tiny/tables.toml:17: table.handle: 0x2000002 of table filter must lie in 0x01000000 "
            "to 0x01ffffff\n"
            "tiny/tables.toml:55: table.name: the name fib4 is taken at tiny/tables.toml:42\n"
            "tiny/tables.toml:147: table.resources.resource: table seen names unseenReg, which "
            "is no counter, meter or register\n");
}

// References into a file that cannot be parsed are not held against the files that name them.
TEST(CatalogueFaults, BrokenFileHidesNoFaultWithinOtherRows) {
  std::vector<CatalogueFile> files = tiny_files();
  replace(files, "actions.toml", "actions = [", "actions = ");
  replace(files, "stateful.toml", "width = 32", "width = 5");
  const auto faults = load_program(files).diagnostics.sorted();
  ASSERT_EQ(faults.size(), 2U);
  EXPECT_EQ(faults[0].place.file, "tiny/actions.toml");
  EXPECT_EQ(faults[0].key, "syntax");
  EXPECT_EQ(faults[1].key, "registers.width");
}

TEST(CatalogueFaults, NeededFilesMustBeThereAndOthersMustBeKnown) {
  std::vector<CatalogueFile> files = tiny_files();
  file_of(files, "tables.toml").path = "tiny/table.toml";
  EXPECT_EQ(load_program(files).diagnostics.text(),
            "tiny/table.toml:1: file: a catalogue has no file of this name\n"
            "tiny/tables.toml:1: file: a catalogue needs this file\n");
  EXPECT_EQ(load_program(kSourceDir + "/no_such_directory").diagnostics.text(),
            kSourceDir +
                "/no_such_directory:1: directory: this directory cannot be read: No such "
                "file or directory\n");
}

TEST(CatalogueFaults, AProgramHasActionsAndTables) {
  const std::vector<CatalogueFile> files = {
      {"a/program.toml", "name = \"none\"\nroutes = { action = \"go\", tables = [\"fib\"] }"},
      {"a/actions.toml", "actions = []"},
      {"a/tables.toml", "table = []"}};
  EXPECT_EQ(load_program(files).diagnostics.text(),
            "a/actions.toml:1: actions: actions.toml lists nothing here\n"
            "a/tables.toml:1: table: tables.toml lists nothing here\n");
}

TEST(CatalogueFaults, FilesOfObjectsThatAProgramLacksMayBeLeftOut) {
  const std::vector<CatalogueFile> files = {
      {"a/program.toml", "name = \"least\""},
      {"a/actions.toml", "actions = [{ name = \"go\", value = 0 }]"},
      {"a/tables.toml",
       "[[table]]\nname = \"only\"\nhandle = 0x01000001\n"
       "actions = [{ action = \"go\", handle = 0x20000001, default = true }]"}};
  const LoadResult result = load_program(files);
  EXPECT_EQ(result.diagnostics.text(), "");
  ASSERT_TRUE(result.program);
  EXPECT_FALSE(result.program->snapshots);
}

TEST(ExportClashes, ArePlacedAtTheLaterRow) {
  const LoadResult result = load_program(tiny_files());
  ASSERT_TRUE(result.program) << result.diagnostics.text();
  Diagnostics none;
  check_exports(*result.program, {{"p4_pd_tiny_init", ""}, {"p4_pd_tiny_seen_value", "seen"}},
                none);
  EXPECT_EQ(none.text(), "");
  // A function takes the name of the constant of action discard, another is derived twice.
  Diagnostics clashes;
  check_exports(*result.program,
                {{"p4_pd_tiny_discard", ""}, {"p4_pd_tiny_x", "fib4"}, {"p4_pd_tiny_x", "seen"}},
                clashes);
  EXPECT_EQ(clashes.text(),
            "tiny/actions.toml:6: name: action discard and the program at tiny/program.toml:3 make "
            "the same C name p4_pd_tiny_discard\n"
            "tiny/tables.toml:141: name: seen and fib4 at tiny/tables.toml:42 make the same C name "
            "p4_pd_tiny_x\n");
}

}  // namespace
}  // namespace pdgen
