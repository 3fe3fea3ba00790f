// Learning digests: what the data plane learns, delivered to the tool until it is acknowledged.
#include "tesselctl/kinds/digest.hpp"

#include <algorithm>

#include "soft_learning.h"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/kinds/event_rows.hpp"
#include "tesselctl/program/library.hpp"
#include "tesselctl/program/record.hpp"

namespace tesselctl {

namespace {

using DigestLine = ObjectLine<soft_digest_t>;

const bindings::Record &record_of(const soft_digest_t &digest) {
  return *find_record(binding().digests.list(), digest.name);
}

Row message_row(const soft_digest_t &digest, uint32_t number, bf_pipe_id_t pipe) {
  return Row().object("digest", digest.name).number("message", number).number("pipe", pipe);
}

void print_message(Context &context, uint32_t number, const pipe_mgr_digest_message_t &message) {
  const soft_digest_t &digest = digest_of(message);
  for (uint32_t i = 0; i < message.entry_count; ++i) {
    context.results.row(message_entry_row(digest, number, message, i));
  }
}

bf_status_t hold(pipe_session_handle_t, pipe_mgr_digest_message_t *message, void *context) {
  Messages &messages = static_cast<Events *>(context)->messages;
  messages.held.emplace(++messages.delivered, message);
  return BF_SUCCESS;
}

void listen(Context &context, const Invocation &invocation) {
  const DigestLine line(context, invocation, {"timeout"});
  if (line.options.has("timeout")) {
    Call timeout = context.device.prepare("set_learning_timeout", "");
    line.run(timeout.set("timeout", line.options.quantity("timeout", kMicroseconds)));
  }
  Call call = line.call("digest_register");
  call.set("callback", reinterpret_cast<const void *>(&hold));
  line.run(call.set("cookie", &context.device.events()));
  print_messages(context);
  line.done("listened to");
}

void ignore(Context &context, const Invocation &invocation) {
  const DigestLine line(context, invocation);
  line.run(line.call("digest_deregister"));
  line.done("ignored");
}

// Fields that are not given are 0.
void inject(Context &context, const Invocation &invocation) {
  const FieldWords words(invocation, 1, {"pipe"});
  const DigestLine line(context, words.options(), {"pipe"});
  const RecordWriter fields = words.record(record_of(line.object), line.object.name);
  uint32_t learnt = 0;
  check(soft_digest_inject(context.device.id(), pipe_of(context, line.options, 0),
                           line.object.handle, fields.data(), 1, line.object.entry_bytes, &learnt),
        line.word);
  print_messages(context);
  if (learnt == 0) context.results.row(line.row().object("event", "known"));
}

void show(Context &context, const Invocation &invocation) {
  const DigestLine line(context, invocation);
  Row sample = message_row(line.object, 0, 0);
  add_samples(sample, "fields", record_of(line.object));
  context.results.expect(sample);
  for (const auto &[number, message] : context.device.events().messages.held) {
    if (message->digest == line.object.handle) print_message(context, number, *message);
  }
}

// One message, or all of the digest.
void acknowledge(Context &context, const Invocation &invocation) {
  const DigestLine line(context, invocation, {"message"});
  const bool one = line.options.has("message");
  const uint64_t only = line.options.number_or("message", 0xffffffffu, 0);
  uint64_t given_back = 0;
  auto &held = context.device.events().messages.held;
  for (auto at = held.begin(); at != held.end();) {
    if ((one && at->first != only) || at->second->digest != line.object.handle) {
      ++at;
      continue;
    }
    line.run(line.call("digest_notify_ack").set("message", at->second));
    at = held.erase(at);
    ++given_back;
  }
  if (given_back == 0 && one) {
    throw Fault(line.options.need("message"), "no message with this number is held");
  }
  line.done(line.row().number("messages", given_back), "acknowledged");
}

std::string help_of(const soft_digest_t &digest) {
  return fmt::format("{} fields", digest.field_count);
}

constexpr ObjectWord kWords[] = {{"DIGEST", offer_objects<soft_digest_t, help_of>}};

constexpr Command kCommands[] = {
    {"digest listen", "DIGEST [timeout=US]",
     "takes the messages of a digest; timeout is how long the device collects entries", listen,
     Kind::acts},
    {"digest ignore", "DIGEST", "takes no more messages", ignore, Kind::acts},
    {"digest inject", "DIGEST FIELD=VALUE... [pipe=N]",
     "has the data plane learn an entry; fields that are not given are 0", inject, Kind::acts},
    {"digest show", "DIGEST", "prints the messages that are held", show, Kind::lists},
    {"digest ack", "DIGEST [message=N]", "gives a message back, or all", acknowledge, Kind::acts},
};

}  // namespace

const soft_digest_t &digest_of(const pipe_mgr_digest_message_t &message) {
  return *std::ranges::find(program_rows<soft_digest_t>(), message.digest, &soft_digest_t::handle);
}

Row message_entry_row(const soft_digest_t &digest, uint32_t number,
                      const pipe_mgr_digest_message_t &message, uint32_t entry) {
  Row row = message_row(digest, number, message.pipe);
  add_record(row, "fields", record_of(digest),
             message.entries + size_t{entry} * message.entry_size);
  return row;
}

void print_messages(Context &context) {
  Messages &messages = context.device.events().messages;
  for (auto at = messages.held.upper_bound(messages.printed); at != messages.held.end(); ++at) {
    print_message(context, at->first, *at->second);
  }
  messages.printed = messages.delivered;
}

extern const Topic kDigestTopic = {"Digests", kCommands, kWords};

}  // namespace tesselctl
