// The list of kinds: a row each.
#include "tesselctl/state/kind.hpp"

namespace tesselctl {

extern const ItemKind kMemberKind, kGroupKind, kFallbackKind;
extern const ItemKind kDefaultKind, kEntryKind, kAgeingKind;
extern const ItemKind kCounterKind, kMeterKind, kRegisterKind, kRegisterCellKind;
extern const ItemKind kHashKind, kValueSetKind;

std::span<const ItemKind *const> kinds() {
  static constexpr const ItemKind *kKinds[] = {
      &kMemberKind,  &kGroupKind, &kFallbackKind, &kDefaultKind,      &kEntryKind, &kAgeingKind,
      &kCounterKind, &kMeterKind, &kRegisterKind, &kRegisterCellKind, &kHashKind,  &kValueSetKind,
  };
  return kKinds;
}

}  // namespace tesselctl
