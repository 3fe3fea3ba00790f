#include "contract/clients.hpp"

#include <cjson/cJSON.h>

#include <algorithm>
#include <cstring>
#include <mutex>
#include <string>
#include <vector>

#include "contract/contract_call.hpp"
#include "soft_sdk.h"

namespace soft {
namespace {

struct Client {
  uint32_t handle = 0;
  std::string name;
  uint32_t priority = 0;
  bf_drv_client_callbacks_t callbacks{};
};

struct Clients {
  std::mutex mutex;
  std::vector<Client> list;  // ascending by priority, then by registration
  uint32_t last_handle = 0;

  // Both under the mutex.
  template <class Key, class Member>
  Client *find(const Key &key, Member of) {
    const auto it = std::ranges::find(list, key, of);
    return it == list.end() ? nullptr : &*it;
  }
  void sort() { std::ranges::stable_sort(list, {}, &Client::priority); }
};

Clients &clients() {
  static Clients *const instance = new Clients;
  return *instance;
}

// Callbacks run without the mutex: they may register or deregister clients.
std::vector<Client> clients_now() {
  const std::lock_guard lock(clients().mutex);
  return clients().list;
}

bf_status_t add_client(const char *name, uint32_t *handle) {
  if (name == nullptr || handle == nullptr) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(clients().mutex);
  if (clients().find(std::string_view(name), &Client::name) != nullptr) return BF_ALREADY_EXISTS;
  clients().list.push_back({clients().last_handle + 1, name, 0, {}});
  *handle = ++clients().last_handle;
  clients().sort();
  return BF_SUCCESS;
}

bf_status_t bind_callbacks(uint32_t handle, const bf_drv_client_callbacks_t *callbacks,
                           uint32_t priority) {
  if (callbacks == nullptr) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(clients().mutex);
  Client *client = clients().find(handle, &Client::handle);
  if (client == nullptr) return BF_OBJECT_NOT_FOUND;
  client->callbacks = *callbacks;
  client->priority = priority;
  clients().sort();
  return BF_SUCCESS;
}

bf_status_t remove_client(uint32_t handle) {
  const std::lock_guard lock(clients().mutex);
  const auto gone =
      std::erase_if(clients().list, [&](const Client &c) { return c.handle == handle; });
  return gone == 0 ? BF_OBJECT_NOT_FOUND : BF_SUCCESS;
}

// A new object at the end of a list that belongs to the document; null when there is no memory.
cJSON *append_object(cJSON *list) {
  cJSON *object = cJSON_CreateObject();
  if (object != nullptr && !cJSON_AddItemToArray(list, object)) {
    cJSON_Delete(object);
    object = nullptr;
  }
  return object;
}

bf_status_t log_clients(uint8_t device, cJSON *document) {
  if (!cJSON_IsObject(document)) return BF_CORRUPT_DATA;
  cJSON *list = cJSON_AddArrayToObject(document, "clients");
  if (list == nullptr) return BF_NO_MEMORY;
  for (const Client &client : clients_now()) {
    if (client.callbacks.device_log == nullptr) continue;
    cJSON *element = append_object(list);
    if (cJSON_AddStringToObject(element, "client", client.name.c_str()) == nullptr) {
      return BF_NO_MEMORY;
    }
    cJSON *state = cJSON_AddObjectToObject(element, "state");
    if (state == nullptr) return BF_NO_MEMORY;
    const bf_status_t status = client.callbacks.device_log(device, state);
    if (status != BF_SUCCESS) return status;
  }
  return BF_SUCCESS;
}

// The state that a document holds for a client, or null.
cJSON *state_of(const cJSON *list, const std::string &name) {
  const cJSON *element = nullptr;
  cJSON_ArrayForEach(element, list) {
    const char *client = cJSON_GetStringValue(cJSON_GetObjectItemCaseSensitive(element, "client"));
    if (client != nullptr && name == client) {
      return cJSON_GetObjectItemCaseSensitive(element, "state");
    }
  }
  return nullptr;
}

bf_status_t restore_clients(uint8_t device, const cJSON *document) {
  const cJSON *list = cJSON_GetObjectItemCaseSensitive(document, "clients");
  if (!cJSON_IsArray(list)) return BF_CORRUPT_DATA;
  for (const Client &client : clients_now()) {
    cJSON *state = state_of(list, client.name);
    if (client.callbacks.device_restore == nullptr || state == nullptr) continue;
    const bf_status_t status = client.callbacks.device_restore(device, state);
    if (status != BF_SUCCESS) return status;
  }
  return BF_SUCCESS;
}

}  // namespace

void notify_clients_of_removal(bf_device_id_t device) {
  for (const Client &client : clients_now()) {
    if (client.callbacks.device_remove != nullptr) client.callbacks.device_remove(device);
  }
}

}  // namespace soft

bf_status_t bf_drv_register(const char *client_name, uint32_t *client) {
  return SOFT_CALL((client_name, client), soft::add_client(client_name, client));
}

bf_status_t bf_drv_client_register_callbacks(uint32_t client,
                                             const bf_drv_client_callbacks_t *callbacks,
                                             uint32_t priority) {
  return SOFT_CALL((client, callbacks, priority),
                   soft::bind_callbacks(client, callbacks, priority));
}

bf_status_t bf_drv_deregister(uint32_t client) {
  return SOFT_CALL((client), soft::remove_client(client));
}

uint32_t soft_client_count(void) {
  const std::lock_guard lock(soft::clients().mutex);
  return static_cast<uint32_t>(soft::clients().list.size());
}

bf_status_t soft_client_get(const char *client_name, uint32_t *client, uint32_t *priority,
                            bf_drv_client_callbacks_t *callbacks) {
  if (client_name == nullptr) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(soft::clients().mutex);
  const soft::Client *found =
      soft::clients().find(std::string_view(client_name), &soft::Client::name);
  if (found == nullptr) return BF_OBJECT_NOT_FOUND;
  if (client != nullptr) *client = found->handle;
  if (priority != nullptr) *priority = found->priority;
  if (callbacks != nullptr) *callbacks = found->callbacks;
  return BF_SUCCESS;
}

bf_status_t soft_device_log(bf_device_id_t device, cJSON *document) {
  if (!soft_device_exists(device)) return BF_INVALID_DEVICE;
  return soft::guarded([&] { return soft::log_clients(static_cast<uint8_t>(device), document); });
}

bf_status_t soft_device_restore(bf_device_id_t device, const cJSON *document) {
  if (!soft_device_exists(device)) return BF_INVALID_DEVICE;
  return soft::guarded(
      [&] { return soft::restore_clients(static_cast<uint8_t>(device), document); });
}
