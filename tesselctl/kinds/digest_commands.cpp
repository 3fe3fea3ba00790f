// Learning digests: what the data plane learns, delivered to the tool until it is acknowledged.
#include "tesselctl/kinds/digest_commands.hpp"

#include "pipe_mgr_types.h"
#include "soft_learning.h"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/subject.hpp"
#include "tesselctl/program/library.hpp"
#include "tesselctl/program/record.hpp"

namespace tesselctl {

namespace {

const soft_digest_t &digest_of(const Invocation &invocation) {
  return resolve_object<soft_digest_t>(need_argument(invocation, 0, "the name of a digest"),
                                       "digest");
}

Row digest_row(const soft_digest_t &digest) {
  Row row;
  row.object("digest", digest.name);
  return row;
}

const bindings::Record &record_of(const soft_digest_t &digest) {
  return *find_record(bindings::binding.digests.list(), digest.name);
}

Row message_row(const soft_digest_t &digest, uint32_t number, bf_pipe_id_t pipe) {
  return digest_row(digest).number("message", number).number("pipe", pipe);
}

void tell_message(Context &context, uint32_t number, const pipe_mgr_digest_message_t &message) {
  for (const soft_digest_t &digest : program_rows<soft_digest_t>()) {
    if (digest.handle != message.digest) continue;
    for (uint32_t i = 0; i < message.entry_count; ++i) {
      const uint8_t *entry = message.entries + size_t{i} * message.entry_size;
      Row row = message_row(digest, number, message.pipe);
      add_record(row, "fields", record_of(digest), entry);
      context.results.row(row);
    }
  }
}

bf_status_t hold(pipe_session_handle_t, pipe_mgr_digest_message_t *message, void *context) {
  Messages &messages = static_cast<Events *>(context)->messages;
  messages.held.emplace(++messages.delivered, message);
  return BF_SUCCESS;
}

void listen(Context &context, const Invocation &invocation) {
  const soft_digest_t &digest = digest_of(invocation);
  const Options options(invocation, 1, {"timeout"});
  if (options.has("timeout")) {
    Call timeout = context.device.prepare("set_learning_timeout", "");
    timeout.set("timeout", options.number("timeout", 0xffffffffu));
    check(timeout.run(), invocation.arguments[0]);
  }
  Call call = context.device.prepare("digest_register", digest.name);
  call.set("callback", reinterpret_cast<const void *>(&hold))
      .set("cookie", &context.device.events());
  check(call.run(), invocation.arguments[0]);
  tell_messages(context);
  context.results.done(digest_row(digest), "listened to");
}

void ignore(Context &context, const Invocation &invocation) {
  const soft_digest_t &digest = digest_of(invocation);
  refuse_arguments_from(invocation, 1);
  check(context.device.prepare("digest_deregister", digest.name).run(), invocation.arguments[0]);
  context.results.done(digest_row(digest), "ignored");
}

// Fields that are not given are 0.
void inject(Context &context, const Invocation &invocation) {
  const soft_digest_t &digest = digest_of(invocation);
  RecordWriter fields(record_of(digest), digest.name);
  std::vector<Word> option_words;
  for (const Word &word : invocation.arguments.subspan(1)) {
    const Assignment assignment = split_assignment(word);
    if (assignment.name.text == "pipe") {
      option_words.push_back(word);
    } else {
      fields.set(assignment);
    }
  }
  const Options options({invocation.command, option_words}, 0, {"pipe"});
  const auto pipe =
      static_cast<bf_pipe_id_t>(options.number_or("pipe", context.device.pipes() - 1, 0));
  uint32_t learnt = 0;
  check(soft_digest_inject(context.device.id(), pipe, digest.handle, fields.data(), 1,
                           digest.entry_bytes, &learnt),
        invocation.arguments[0]);
  tell_messages(context);
  if (learnt == 0) context.results.row(digest_row(digest).object("event", "known"));
}

void show(Context &context, const Invocation &invocation) {
  const soft_digest_t &digest = digest_of(invocation);
  refuse_arguments_from(invocation, 1);
  Row sample = message_row(digest, 0, 0);
  add_samples(sample, "fields", record_of(digest));
  context.results.expect(sample);
  for (const auto &[number, message] : context.device.events().messages.held) {
    if (message->digest == digest.handle) tell_message(context, number, *message);
  }
}

// One message, or all of the digest.
void acknowledge(Context &context, const Invocation &invocation) {
  const soft_digest_t &digest = digest_of(invocation);
  const Options options(invocation, 1, {"message"});
  auto &held = context.device.events().messages.held;
  const uint64_t only = options.number_or("message", 0xffffffffu, 0);
  size_t given_back = 0;
  for (auto at = held.begin(); at != held.end();) {
    const bool wanted = !options.has("message") || at->first == only;
    if (!wanted || at->second->digest != digest.handle) {
      ++at;
      continue;
    }
    Call call = context.device.prepare("digest_notify_ack", digest.name);
    check(call.set("message", at->second).run(), invocation.arguments[0]);
    at = held.erase(at);
    ++given_back;
  }
  if (given_back == 0 && options.has("message")) {
    throw Fault(options.need("message"), "no message with this number is held");
  }
  context.results.done(digest_row(digest).number("messages", given_back), "acknowledged");
}

void offer_digests(Offers &offers, const Command &, Words) {
  offer_objects<soft_digest_t>(
      offers, [](const soft_digest_t &row) { return std::to_string(row.field_count) + " fields"; });
}

constexpr ObjectWord kWords[] = {{"DIGEST", offer_digests}};

constexpr Command kCommands[] = {
    {"digest listen", "DIGEST [timeout=US]",
     "takes the messages of a digest; timeout is how long the device collects entries", listen},
    {"digest ignore", "DIGEST", "takes no more messages", ignore},
    {"digest inject", "DIGEST FIELD=VALUE... [pipe=N]",
     "has the data plane learn an entry; fields that are not given are 0", inject},
    {"digest show", "DIGEST", "prints the messages that are held", show, Kind::lists},
    {"digest ack", "DIGEST [message=N]", "gives a message back, or all", acknowledge},
};

}  // namespace

void tell_messages(Context &context) {
  Messages &messages = context.device.events().messages;
  for (auto at = messages.held.upper_bound(messages.told); at != messages.held.end(); ++at) {
    tell_message(context, at->first, *at->second);
  }
  messages.told = messages.delivered;
}

std::span<const Command> digest_commands() { return kCommands; }
std::span<const ObjectWord> digest_words() { return kWords; }

}  // namespace tesselctl
