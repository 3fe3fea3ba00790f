// What counters and registers have in common: a copy of their values in software.
#pragma once

#include "tesselctl/command/options.hpp"

namespace tesselctl {

// source=hardware brings a value up to date before it is read; that is what people want to see.
inline uint64_t read_flags(const Options &options) {
  return options.choice_or("source", {"hardware", "software"}, 0) == 0 ? P4_PD_READ_FROM_HARDWARE
                                                                       : 0;
}

// "OBJECT": brings its copy up to date.
template <class Object>
void synchronise(Context &context, const Invocation &invocation) {
  const ObjectLine<Object> line(context, invocation);
  bool done = false;
  const auto note = [](bf_device_id_t, void *cookie) { *static_cast<bool *>(cookie) = true; };
  void (*const callback)(bf_device_id_t, void *) = note;
  Call call = line.call(fmt::format("{}_hw_sync", kObjects<Object>.keyword));
  call.set("callback", reinterpret_cast<const void *>(callback)).set("cookie", &done);
  line.run(call);
  Row row;
  row.object("object", line.object.name);
  context.results.row(row.object("state", done ? "synchronised" : "not yet synchronised"));
}

}  // namespace tesselctl
