// From a typed action spec to the pipeline manager's action data and resource list, unrolled per
// (table, action) pair.
#pragma once

#include "codec/bytes.hpp"
#include "codec/meter_spec.hpp"
#include "descriptor.hpp"

namespace pd {

// Action data for the duration of one SDK call; an action without parameters still has an address.
template <class A>
struct ActionBytes {
  uint8_t bytes[A::action.data_bytes == 0 ? 1 : A::action.data_bytes];
};

namespace detail {

template <Param P>
PD_INLINE void encode_param(const uint8_t *record, uint8_t *bytes) {
  const uint32_t value = P.is_index() ? 0 : load<P.storage>(record + P.offset);
  store_big_endian<P.bytes>(bytes + P.position, value);
}

// Appends the resource if the operation names it.
template <Resource R, Operation Op>
PD_INLINE p4_pd_status_t encode_resource(const uint8_t *record,
                                         const p4_pd_bytes_meter_spec_t *meter,
                                         pipe_mgr_action_spec_t &spec) {
  if constexpr ((R.operations & Op) != 0) {
    pipe_mgr_resource_t &resource = spec.resources[spec.resource_count];
    if constexpr (R.attach == Attach::meter_spec) {
      if (meter != nullptr) {
        const p4_pd_status_t status =
            convert_meter(*meter, R.rate_unit, false, resource.data.meter);
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

template <class A, size_t... I>
PD_INLINE void encode_params([[maybe_unused]] const uint8_t *record,
                             [[maybe_unused]] uint8_t *bytes, std::index_sequence<I...>) {
  PD_FOR_EACH(encode_param<A::params[I]>(record, bytes));
}

// Stops at the first failure; only a meter spec can fail.
template <class P, Operation Op, size_t... I>
PD_INLINE p4_pd_status_t encode_resources([[maybe_unused]] const uint8_t *record,
                                          [[maybe_unused]] const p4_pd_bytes_meter_spec_t *meter,
                                          [[maybe_unused]] pipe_mgr_action_spec_t &spec,
                                          std::index_sequence<I...>) {
  p4_pd_status_t status = BF_SUCCESS;
  (void)(((status = encode_resource<P::resources[I], Op>(record, meter, spec)) == BF_SUCCESS) &&
         ...);
  return status;
}

}  // namespace detail

// Fills spec and data from the record, which is null for an action without parameters; spec points
// into data afterwards. The type is 0 for the data of a member itself.
template <class A>
PD_INLINE void encode_action_data(const void *record, ActionBytes<A> &data,
                                  pipe_mgr_action_spec_t &spec, uint32_t type = 0) {
  clear(spec);
  spec.type = type;  // here, where it is one store with the clearing
  spec.data.valid_bit_count = A::action.data_bits;
  spec.data.byte_count = A::action.data_bytes;
  spec.data.bytes = data.bytes;
  detail::encode_params<A>(static_cast<const uint8_t *>(record), data.bytes,
                           std::make_index_sequence<A::action.param_count>{});
}

// The same with the resources that an operation of the pair P names.
template <class P, Operation Op>
PD_INLINE p4_pd_status_t encode_action(const void *record, const p4_pd_bytes_meter_spec_t *meter,
                                       ActionBytes<typename P::ActionType> &data,
                                       pipe_mgr_action_spec_t &spec) {
  encode_action_data<typename P::ActionType>(record, data, spec, PIPE_ACTION_DATA);
  return detail::encode_resources<P, Op>(static_cast<const uint8_t *>(record), meter, spec,
                                         std::make_index_sequence<P::resource_count>{});
}

}  // namespace pd
