// Constant texts of introspection, and what the generator makes of awkward characters.
#include <gtest/gtest.h>

#include "pdgen/text.hpp"
#include "pdgen/texts/texts.hpp"

namespace pdgen {
namespace {

TEST(Texts, MasksAreLongBeyond31Bits) {
  EXPECT_EQ(mask_text({0, 0x4}), "0x4");
  EXPECT_EQ(mask_text({0, 0x7fffffff}), "0x7fffffff");
  EXPECT_EQ(mask_text({0, 0x80000000}), "0x80000000L");
  EXPECT_EQ(mask_text({1, 2}), "0x10000000000000002L");
  EXPECT_EQ(mask_text({0, 0}), "0x0");
}

// A table with one field of each role and a partial key.
TEST(Texts, LinesAndValuesFollowTheRecord) {
  Table table;
  table.name = "acl";
  KeyField bits;
  bits.name = "md_bits";
  bits.width = 4;
  bits.storage_bytes = 1;
  bits.key_bits = {0, 0x8};
  bits.partial = true;
  table.key = {bits};
  table.record = {{RecordRole::kValue, 0, "md_bits", "bits", Hint::kNone, 4, 1},
                  {RecordRole::kMask, 0, "md_bits_mask", "bitsMask", Hint::kNone, 4, 1},
                  {RecordRole::kPrefixLength, 0, "md_bits_prefix_length", "p", Hint::kNone, 16, 2}};
  Program program;
  program.name = "tiny";
  EXPECT_EQ(match_spec_lines(program, table),
            "p4_pd_tiny_acl_match_spec_t:\n md_bits mask 0x8: 0x\n md_bits_mask mask 0x8: 0x\n"
            " md_bits_prefix_length: 0x\n");
  EXPECT_EQ(match_spec_schema(table),
            "(( 'bits','md_bits',4,0x8,None,None,None),( 'bitsMask','md_bits_mask',4,0x8,None,None,"
            "None),( 'p','md_bits_prefix_length',16,0xffff,None,None,None),)");
  const ValueText value = match_spec_value(table);
  EXPECT_EQ(value.text, "( 0x0,0x0,0x0000,),");
  EXPECT_EQ(value.digits_at, (std::vector<std::size_t>{4, 8, 12}));
}

TEST(Texts, LabelSizesCountTheLongestFormOfEachItem) {
  KeyField field;
  field.storage_bytes = 2;
  field.key_bits = {0, 0x1ff};
  Label label;
  LabelItem number;
  number.kind = LabelKind::kNumber;
  number.field.target = &field;
  number.format = "n";
  number.digits = 1;
  label.items = {number};
  EXPECT_EQ(label_size(label), sizeof("n & 0xffff 0x1ff "));
  label.items[0].texts = {{{}, 0, "a text that is longer than the number"}};
  EXPECT_EQ(label_size(label), sizeof("a text that is longer than the number"));
  LabelItem flag;
  flag.kind = LabelKind::kFlag;
  flag.label = "f";
  flag.after = 2;
  label.items = {flag};
  EXPECT_EQ(label_size(label), sizeof("!f  "));
}

TEST(Texts, LiteralsEscapeWhatTheCompilerWouldRead) {
  EXPECT_EQ(c_literal("a 'b' \"c\" \\d\n\xc3\xa9"), R"("a 'b' \"c\" \\d\012\303\251")");
}

}  // namespace
}  // namespace pdgen
