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
