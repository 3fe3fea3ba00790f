#include "tesselctl/server/server.hpp"

#include <sys/eventfd.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>

#include "tesselctl/journal/journal.hpp"

namespace tesselctl {

namespace {

// When the process has no descriptor left for a client that waits, it tries again so much later.
constexpr int kTryAgainMs = 100;
// Events of so long are sent together, as a message for each would cost more than the change.
constexpr auto kTogether = std::chrono::milliseconds(20);

}  // namespace

Server::Server(Device &device, ListeningSocket listening, const ServerLimits &limits,
               Journal *journal)
    : log_(device),
      monitors_(device, log_),
      served_{device, log_, monitors_, journal},
      limits_(limits),
      wake_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK | EFD_SEMAPHORE)),
      listening_(std::move(listening)) {
  if (!wake_.is_open()) throw Fault(fmt::format("cannot start the server: {}", strerror(errno)));
  clients_.reserve(limits_.clients);
  waited_.reserve(limits_.clients + 2);
  if (journal == nullptr) return;
  log_.add(*journal);
  log_.count_from(journal->last());
}

void Server::wake_up() noexcept {
  const int error = errno;
  const uint64_t one = 1;
  // It can only fail when the server is awake already.
  [[maybe_unused]] const ssize_t wrote = write(wake_.get(), &one, sizeof one);
  errno = error;
}

void Server::stop() noexcept {
  stopping_ = true;
  wake_up();
}

void Server::post(std::function<void()> job) {
  const std::lock_guard lock(jobs_mutex_);
  if (ended_) return;
  jobs_.push_back(std::move(job));
  wake_up();
}

// One a round, as clients have one line a round.
void Server::run_job() {
  std::function<void()> job;
  {
    const std::lock_guard lock(jobs_mutex_);
    if (jobs_.empty()) return;
    job = std::move(jobs_.front());
    jobs_.pop_front();
  }
  uint64_t one = 0;
  [[maybe_unused]] const ssize_t got = read(wake_.get(), &one, sizeof one);
  try {
    job();
  } catch (const std::bad_alloc &) {
    // Who waits for it sees that it is gone.
  }
}

ServerFigures Server::figures() const {
  ServerFigures figures = figures_;
  figures.clients = clients_.size();
  return figures;
}

void Server::run() {
  while (!stopping_) {
    wait();
    for (const auto &client : clients_) {
      if (!stopping_ && client->is_ready()) client->step();
    }
    if (!stopping_) run_job();
    forget_gone();
  }
  clients_.clear();
  const std::lock_guard lock(jobs_mutex_);
  ended_ = true;
  jobs_.clear();
}

void Server::forget_gone() {
  std::erase_if(clients_, [](const auto &client) { return client->is_gone(); });
}

// Until there is something to do; takes what clients sent and sends what they wait for.
void Server::wait() {
  waited_.clear();
  waited_.push_back({wake_.get(), POLLIN, 0});
  waited_.push_back({listening_.get(), POLLIN, 0});
  if (out_of_descriptors_) waited_.back().events = 0;
  int timeout = out_of_descriptors_ ? kTryAgainMs : -1;
  for (const auto &client : clients_) {
    waited_.push_back({client->fd(), client->events(), 0});
    if (client->is_ready()) timeout = 0;
  }
  out_of_descriptors_ = false;
  timeout = wait_for_events(timeout);
  if (poll(waited_.data(), static_cast<nfds_t>(waited_.size()), timeout) < 0) {
    if (errno == EINTR) return;
    throw Fault(fmt::format("the server cannot wait for clients: {}", strerror(errno)));
  }
  for (size_t i = 0; i < clients_.size(); ++i) clients_[i]->handle(waited_[i + 2].revents);
  send_events();
  if (waited_[1].revents != 0) accept_clients();
}

// The timeout, or less of it where events are to be sent before.
int Server::wait_for_events(int timeout) {
  const bool any = std::ranges::any_of(clients_, [](const auto &one) { return one->has_events(); });
  if (!any) return timeout;
  const auto now = std::chrono::steady_clock::now();
  if (!send_events_at_) send_events_at_ = now + kTogether;
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(*send_events_at_ - now);
  const int most = std::max(0, static_cast<int>(left.count()));
  return timeout < 0 ? most : std::min(timeout, most);
}

void Server::send_events() {
  if (!send_events_at_ || std::chrono::steady_clock::now() < *send_events_at_) return;
  send_events_at_.reset();
  for (const auto &client : clients_) client->send_collected();
}

void Server::accept_clients() {
  while (true) {
    Descriptor socket = listening_.accept_client();
    if (!socket.is_open()) break;
    try {
      accept_client(std::move(socket));
    } catch (const std::bad_alloc &) {
      // That client alone is not served.
    }
  }
  out_of_descriptors_ = errno != EAGAIN && errno != EWOULDBLOCK;
}

void Server::accept_client(Descriptor socket) {
  if (clients_.size() >= limits_.clients) {
    for (const auto &client : clients_) client->look();
    forget_gone();
  }
  if (clients_.size() < limits_.clients) {
    clients_.push_back(
        std::make_unique<ServedClient>(std::move(socket), served_, limits_, figures_, stopping_));
    return;
  }
  const std::string refusal = encode_message(
      MessageType::refusal, fmt::format("the server has {} clients, no more", limits_.clients));
  send(socket.get(), refusal.data(), refusal.size(), MSG_NOSIGNAL);
}

}  // namespace tesselctl
