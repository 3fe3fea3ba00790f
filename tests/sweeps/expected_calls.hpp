// The calls that each family of exports makes, as text, and their comparison with the journal.
#pragma once

#include <map>
#include <string_view>
#include <vector>

#include "scene.hpp"

namespace pd_test {

// What the exports of a family do when they succeed: a line of family_calls.txt, which is compiled
// in.
//
// calls: "function(argument, ...)", one or several with "; " between; behind a " | " those for a
// direct resource; "params: " stands before one that is made for a member with parameters only. An
// argument is
//   4711               this number
//   session, pipe ...  the parameter of that name, by value or by address; device_id and pipe_id
//                      are those of the target; "ttl?" is 0 where the export has no such parameter
//   table, adt, sel    the handle of the export's table, or of its profile's two objects
//   resource, action   the handle of the counter, meter, register, calculation, digest or value
//                      set, and of the (table, action) pair
//   field_list         that of the calculation
//   member_action      the action that is recorded for the scene's member or group
//   match              the key of the scene's match spec
//   add, modify, default, member_data
//                      the action spec that these operations send
//   to_member, to_group
//                      an action spec that points there
//   out x              the caller's own pointer x; what the SDK writes must arrive there
//   local, null        a variable of the library, none
//   state              the member-selector state of the profile
//   got x              what the out-parameter x holds after the call
//   key_buffer, data_buffer, no_buffer
//                      a match or action spec to be filled; placed_..., with counts of 0, from
//                      placement data
//   meter, resources, ageing, wred, hash
//                      the records that the scene gives
// Empty for a family that is not in the list.
std::string calls_of(std::string_view family);

// Whether the family hands its parameter on to the SDK as an out-parameter.
bool hands_on(std::string_view family, std::string_view parameter);

// The states that profiles were seen to use; each profile keeps its own.
using StatesSeen = std::map<std::string, uintptr_t>;

// Fails the test where the calls of a scene that was played differ from the text.
void compare_calls(const Scene &scene, const std::string &calls, StatesSeen &states);

}  // namespace pd_test
