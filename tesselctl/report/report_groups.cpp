// Groups and their members on the page of a report.
#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/report/report_parts.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

namespace {

std::string state_text(const GroupReport &group) {
  if (group.members == 0) return "no members";
  return fmt::format("{} of {} active", grouped(group.active),
                     counted(group.members, "member", "members"));
}

// A block for each member and each free place: active ones first.
void write_places(Html &html, const GroupReport &group) {
  constexpr uint64_t kMostPlaces = 64;
  const uint64_t places = std::max(group.members, group.size);
  if (places == 0) return;
  const std::string label = fmt::format("{} active, {} inactive, {} free", group.active,
                                        group.members - group.active, places - group.members);
  const bool blocks = places <= kMostPlaces;
  html.open("svg", {{"class", "bar"},
                    {"role", "img"},
                    {"aria-label", label},
                    {"viewBox", fmt::format("0 0 {} 1", places)},
                    {"preserveAspectRatio", "none"}});
  const auto stretch = [&](const char *kind, uint64_t from, uint64_t to) {
    if (from == to) return;
    const uint64_t step = blocks ? 1 : to - from;
    const double gap = blocks ? 0.08 : 0.0;
    for (uint64_t at = from; at < to; at += step) {
      html.empty("rect", {{"class", kind},
                          {"x", fmt::format("{}", at)},
                          {"width", fmt::format("{:.2f}", static_cast<double>(step) - gap)},
                          {"height", "1"}});
    }
  };
  stretch("fill", 0, group.active);
  stretch("idle", group.active, group.members);
  stretch("free", group.members, places);
  html.close();
}

void write_members(Html &html, const std::vector<MemberReport> &members, bool with_state) {
  write_table(html, {"No.", "Action", with_state ? "State" : "Used by"}, members,
              [&](const MemberReport &member) {
                html.leaf("th", fmt::format("#{}", member.number), {{"scope", "row"}});
                write_outcome(html, member.action, member.parameters);
                if (!with_state) {
                  html.leaf("td", users_text(member.users));
                } else {
                  html.leaf("td", member.active ? "● active" : "○ inactive",
                            {{"class", member.active ? "on" : "off"}});
                }
              });
}

void write_group(Html &html, const GroupReport &group) {
  html.open("div", {{"class", "card"}});
  html.leaf("h4", fmt::format("Group #{}", group.number));
  const std::string room = group.size == 0 ? "" : fmt::format(", room for {}", grouped(group.size));
  html.leaf("p", state_text(group) + room, {{"class", "soft"}});
  write_places(html, group);
  if (!group.first.empty()) write_members(html, group.first, true);
  write_rest(html, group.members, group.first.size());
  html.leaf("p", "Used by " + users_text(group.users), {{"class", "soft"}});
  html.close().line();
}

void write_profile(Html &html, const ProfileReport &profile) {
  html.open("div", {{"class", "part"}}).open("h3").name(profile.name).close();
  std::string text =
      fmt::format("{}, {}, for entries of {}", counted(profile.groups, "group", "groups"),
                  counted(profile.members, "member", "members"), profile.tables);
  if (profile.fallback != 0) {
    text +=
        fmt::format("; member #{} stands in for groups without active members", profile.fallback);
  }
  html.leaf("p", text, {{"class", "soft"}});
  if (!profile.first_groups.empty()) {
    html.open("div", {{"class", "cards"}});
    for (const GroupReport &group : profile.first_groups) write_group(html, group);
    html.close();
    write_rest(html, profile.groups, profile.first_groups.size());
  }
  if (profile.loose != 0) {
    html.leaf("h4", "Members of no group");
    write_members(html, profile.first_loose, false);
    write_rest(html, profile.loose, profile.first_loose.size());
  }
  html.close().line();
}

}  // namespace

void write_profiles(Html &html, const DeviceReport &device) {
  const auto holds = [](const ProfileReport &profile) {
    return profile.members != 0 || profile.groups != 0;
  };
  if (std::none_of(device.profiles.begin(), device.profiles.end(), holds)) return;
  open_section(html, "groups", "Groups");
  for (const ProfileReport &profile : device.profiles) {
    if (holds(profile)) write_profile(html, profile);
  }
  html.close().line();
}

}  // namespace tesselctl
