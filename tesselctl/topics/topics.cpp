// The list of topics: a row for each file of this room and of kinds/ that has commands. Help,
// the manual page and completion have the commands in this order.
#include "tesselctl/command/topic.hpp"
#include "tesselctl/state/kind.hpp"

#include <algorithm>

#include "tesselctl/command/command.hpp"

namespace tesselctl {

extern const Topic kEntryTopic, kTableTopic, kDefaultTopic, kMemberTopic, kGroupTopic,
    kFallbackTopic;
extern const Topic kMeterTopic, kWredTopic, kCounterTopic, kRegisterTopic, kHashTopic,
    kValueSetTopic;
extern const Topic kTrafficTopic, kExplainTopic, kDigestTopic, kSnapshotTopic, kAgeingTopic,
    kStateTopic;
extern const Topic kImageTopic, kCompareTopic, kLintTopic, kRoutesTopic, kAclTopic, kObjectsTopic,
    kIntrospectionTopic, kApiTopic, kReportTopic;
extern const Topic kHistoryTopic, kToolTopic, kMonitorTopic, kHelpTopic;

std::span<const Topic *const> command_topics() {
  static constexpr const Topic *kTopics[] = {
      &kEntryTopic,    &kTableTopic,    &kDefaultTopic, &kMemberTopic,  &kGroupTopic,
      &kFallbackTopic, &kMeterTopic,    &kWredTopic,    &kCounterTopic, &kRegisterTopic,
      &kHashTopic,     &kValueSetTopic, &kTrafficTopic, &kExplainTopic, &kDigestTopic,
      &kSnapshotTopic, &kAgeingTopic,   &kStateTopic,   &kImageTopic,   &kCompareTopic,
      &kLintTopic,     &kRoutesTopic,   &kAclTopic,     &kObjectsTopic, &kIntrospectionTopic,
      &kApiTopic,      &kReportTopic,   &kHistoryTopic, &kToolTopic,    &kMonitorTopic,
      &kHelpTopic,
  };
  return kTopics;
}

std::span<const ItemKind *const> kinds() {
  static const std::vector<const ItemKind *> ordered = [] {
    std::vector<const ItemKind *> all;
    for (const Topic *topic : command_topics()) {
      for (const ItemKind &kind : topic->kinds) all.push_back(&kind);
    }
    std::ranges::sort(all, {}, &ItemKind::order);
    return all;
  }();
  return ordered;
}

}  // namespace tesselctl
