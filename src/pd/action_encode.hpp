// From a typed action spec to the pipeline manager's action data and resource list, unrolled per
// (table, action) pair.
#pragma once

#include "bytes.hpp"
#include "descriptor.hpp"
#include "meter_spec.hpp"

namespace pd {

// Action data for the duration of one SDK call; an action without parameters still has an address.
template <class A>
struct ActionBytes {
  uint8_t bytes[A::action.data_bytes == 0 ? 1 : A::action.data_bytes];
};

namespace detail {

template <Param P>
inline void encode_param(const uint8_t *record, uint8_t *bytes) {
  const uint32_t value = P.is_index() ? 0 : load<P.storage>(record + P.offset);
  store_big_endian<P.bytes>(bytes + P.position, value);
}

// Appends the resource if the operation names it.
template <Resource R, Operation Op>
inline p4_pd_status_t encode_resource(const uint8_t *record, const p4_pd_bytes_meter_spec_t *meter,
                                      pipe_mgr_action_spec_t &spec) {
  if constexpr ((R.operations & Op) != 0) {
    pipe_mgr_resource_t &resource = spec.resources[spec.resource_count];
    if constexpr (R.attach == Attach::meter_spec) {
      if (meter != nullptr) {
        const p4_pd_status_t status =
            convert_meter(*meter, PIPE_RATE_BYTES, false, resource.data.meter);
        if (status != BF_SUCCESS) return status;
        resource.tag = PIPE_RESOURCE_ATTACH;
      } else if constexpr (Op == op_add) {
        return P4_PD_METER_SPEC_MISSING;
      } else {
        resource.tag = Op == op_modify ? PIPE_RESOURCE_KEEP : PIPE_RESOURCE_DETACH;
      }
    } else {
      resource.tag = R.attach == Attach::attach ? PIPE_RESOURCE_ATTACH : PIPE_RESOURCE_DETACH;
    }
    resource.handle = R.handle;
    if constexpr (R.index_param != no_index) resource.index = load<4>(record + R.index_param);
    ++spec.resource_count;
  }
  return BF_SUCCESS;
}

}  // namespace detail

// Fills spec and data from the record, which is null for an action without parameters; spec points
// into data afterwards.
template <class A>
inline void encode_action_data(const void *record, ActionBytes<A> &data,
                               pipe_mgr_action_spec_t &spec) {
  clear(spec);
  spec.data.valid_bit_count = A::action.data_bits;
  spec.data.byte_count = A::action.data_bytes;
  spec.data.bytes = data.bytes;
  [[maybe_unused]] const auto *bytes = static_cast<const uint8_t *>(record);
  [&]<size_t... I>(std::index_sequence<I...>) {
    (detail::encode_param<A::params[I]>(bytes, data.bytes), ...);
  }
  (std::make_index_sequence<A::action.param_count>{});
}

// The same with the resources that an operation of the pair P names.
template <class P, Operation Op>
inline p4_pd_status_t encode_action(const void *record, const p4_pd_bytes_meter_spec_t *meter,
                                    ActionBytes<typename P::ActionType> &data,
                                    pipe_mgr_action_spec_t &spec) {
  encode_action_data<typename P::ActionType>(record, data, spec);
  spec.type = PIPE_ACTION_DATA;
  p4_pd_status_t status = BF_SUCCESS;
  if constexpr (P::resource_count != 0) {
    const auto *bytes = static_cast<const uint8_t *>(record);
    [&]<size_t... I>(std::index_sequence<I...>) {
      // Stops at the first failure; only a meter spec can fail.
      (void)(((status = detail::encode_resource<P::resources[I], Op>(bytes, meter, spec)) ==
              BF_SUCCESS) &&
             ...);
    }
    (std::make_index_sequence<P::resource_count>{});
  }
  return status;
}

}  // namespace pd
