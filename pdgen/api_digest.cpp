// Learning digests: registration, acknowledgement, timeout, and the look-up of entry fields.
#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

constexpr const char *kGroup = "Learning digests";

void add_for_digest(Api &api, const Digest &digest) {
  const auto add = [&](const std::string &operation, std::vector<Parameter> parameters,
                       const char *call) {
    parameters.insert(parameters.begin(), session());
    api.add(kGroup, {digest_function(api.program(), digest, operation), "p4_pd_status_t",
                     std::move(parameters),
                     expand(std::string("return pd::") + call, {hex32(digest.handle)}),
                     "digest_" + operation, digest.name, ""});
  };
  add("register", {device(), {"pipe_mgr_digest_cb_t", "callback"}, cookie()},
      "register_digest($0, session, device, callback, cookie)");
  add("deregister", {device()}, "deregister_digest($0, session, device)");
  add("notify_ack", {{"pipe_mgr_digest_message_t *", "message"}},
      "acknowledge_digest($0, session, message)");
}

void add_for_program(Api &api) {
  const auto add = [&](const std::string &operation, const std::string &result,
                       std::vector<Parameter> parameters, const std::string &call) {
    api.add(kGroup, {program_function(api.program(), operation), result, std::move(parameters),
                     "return pd::" + call, operation, "", ""});
  };
  const Parameter digest_name = {"const char *", "digest_name"};
  add("set_learning_timeout", "p4_pd_status_t", {session(), device(), {"uint32_t", "timeout"}},
      "set_learning_timeout(session, device, timeout)");
  add("get_digest_entry_size", "uint32_t", {digest_name},
      "digest_entry_size(digest::entries, digest_name)");
  add("get_digest_entry_field", "const uint8_t *",
      {{"const uint8_t *", "entry"},
       digest_name,
       {"const char *", "field_name"},
       {"uint32_t *", "size"}},
      "digest_entry_field(digest::entries, entry, digest_name, field_name, size)");
}

}  // namespace

void add_digest_functions(Api &api) {
  api.add_note(
      "Learning digests",
      "A callback is registered per digest and device and receives the pipeline manager's own "
      "messages, each of which is given back with notify_ack. set_learning_timeout (microseconds) "
      "applies to all digests of a device. get_digest_entry_size returns the bytes of one entry, "
      "0 for an unknown digest. get_digest_entry_field returns where a field starts in an entry, "
      "and its bytes in size (null: not wanted); null and 0 for an unknown digest or field. Names "
      "are case-sensitive; multi-byte fields are big-endian.");
  api.begin_unit("digest", {"digest.hpp", "object_names.hpp"});
  for (const Digest &digest : api.program().digests) add_for_digest(api, digest);
  add_for_program(api);
}

}  // namespace pdgen
