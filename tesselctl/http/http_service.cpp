#include "tesselctl/http/http_service.hpp"

#include <dlfcn.h>

#include <filesystem>
#include <fstream>
#include <future>

#include "tesselctl/command/options.hpp"
#include "tesselctl/http/json_answer.hpp"
#include "tesselctl/metrics/device_metrics.hpp"
#include "tesselctl/program/module.hpp"
#include "tesselctl/report/live_page.hpp"
#include "tesselctl/report/report.hpp"
#include "tesselctl/report/report_style.hpp"

namespace tesselctl {

namespace {

constexpr size_t kMostCells = 10'000;

HttpAnswer file_answer(std::string type, std::string_view text) {
  return {.type = std::move(type), .body = std::string(text)};
}

bool is_openmetrics(const HttpRequest &request) {
  return request.accept.find("application/openmetrics-text") != std::string::npos;
}

void add_process(MetricsText &metrics, std::time_t started) {
  metrics.gauge("process_start_time_seconds", "When the server began, since 1970.", "seconds");
  metrics.sample(started);
  metrics.counter("process_cpu_seconds", "CPU time of the server.", "seconds");
  metrics.sample(static_cast<double>(std::clock()) / CLOCKS_PER_SEC);
  uint64_t pages = 0;
  uint64_t resident = 0;
  std::ifstream("/proc/self/statm") >> pages >> resident;
  metrics.gauge("process_resident_memory_bytes", "Memory of the server.", "bytes");
  metrics.sample(resident * static_cast<uint64_t>(sysconf(_SC_PAGESIZE)));
}

void add_server(MetricsText &metrics, const ServerFigures &figures, uint64_t requests) {
  metrics.gauge("tesselctl_server_clients", "Clients of the server's socket.");
  metrics.sample(figures.clients);
  metrics.counter("tesselctl_server_commands", "Commands that clients of the socket ran.");
  metrics.sample(figures.commands);
  metrics.counter("tesselctl_server_faults", "Those of them that had a fault.");
  metrics.sample(figures.faults);
  metrics.counter("tesselctl_server_http_requests", "Requests over HTTP, with this one.");
  metrics.sample(requests);
}

}  // namespace

StartHttp load_http() {
  const std::filesystem::path path = module_folder() / "tool" / "http.so";
  void *module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (module == nullptr) {
    std::error_code none;
    throw Fault(std::filesystem::exists(path, none)
                    ? "--http: " + load_error()
                    : "--http: this tool was built without the library for HTTP");
  }
  return reinterpret_cast<StartHttp>(dlsym(module, kStartHttp));
}

HttpService::HttpService(StartHttp start, const HttpSocket &socket, Server &server, Device &device)
    : socket_(socket), server_(server), device_(device) {
  listener_.reset(
      start(socket.get(), limits_, [this](const HttpRequest &request) { return answer(request); }));
}

HttpAnswer HttpService::answer(const HttpRequest &request) {
  ++requests_;
  if (!socket_.is_for(request.host))
    return {.status = 403,
            .body = "the Host of a request should be localhost, or an address of it\n"};
  if (request.target == kLiveStylePath) return file_answer("text/css", kReportStyle);
  if (request.target == kLiveScriptPath) return file_answer("text/javascript", kLiveScript);
  const auto is_late = std::make_shared<std::atomic<bool>>(false);
  // The job alone has the promise, so that a server that ends without doing it breaks that.
  auto promise = std::make_shared<std::promise<HttpAnswer>>();
  std::future<HttpAnswer> answer = promise->get_future();
  server_.post([this, request, is_late, kept = std::move(promise)] {
    if (*is_late) return;
    const InterruptScope scope([&] { return *is_late || server_.stopping(); });
    try {
      kept->set_value(answer_of_device(request));
    } catch (const Fault &fault) {
      kept->set_value({.status = 400, .body = fault.sentence() + "\n"});
    } catch (...) {
      kept->set_exception(std::current_exception());
    }
  });
  try {
    if (answer.wait_for(limits_.time) == std::future_status::ready) return answer.get();
    *is_late = true;
    return {.status = 503, .body = "the server is busy\n"};
  } catch (const std::future_error &) {
    return {.status = 503, .body = "the server ends\n"};
  } catch (const std::exception &) {
    return {.status = 500, .body = "there is no answer\n"};
  }
}

HttpAnswer HttpService::answer_of_device(const HttpRequest &request) {
  constexpr std::string_view kJson = "/json/";
  std::string_view query = request.target;
  std::string_view path = take_until(query, '?');
  if (path == "/") return {.type = "text/html; charset=utf-8", .body = page(query)};
  if (path == "/metrics") {
    if (!query.empty()) throw Fault("/metrics takes no words behind '?'");
    const auto format = is_openmetrics(request) ? MetricsFormat::open_metrics : MetricsFormat::text;
    return {.type = std::string(content_type(format)), .body = metrics(format)};
  }
  if (!path.starts_with(kJson)) {
    return {.status = 404, .body = "there are /, /metrics and /json/COMMAND/WORD?NAME=VALUE\n"};
  }
  path.remove_prefix(kJson.size());
  return json_answer(device_, server_.journal(), line_of(path, query));
}

std::string HttpService::page(std::string_view query) {
  const std::string line = line_of({}, query);
  std::vector<Word> words;
  split_words(line, words);
  const Options options({{}, words}, 0, {"rows"});
  Report report;
  report.is_live = true;
  report.device =
      collect_report(device_, "device " + std::to_string(device_.id()),
                     static_cast<size_t>(options.number_or("rows", kMostReportRows, kReportRows)));
  return report_page(report);
}

std::string HttpService::metrics(MetricsFormat format) {
  MetricsText metrics = metrics_of(device_, format);
  add_occupancy(metrics, device_);
  add_counters(metrics, device_, program_rows<soft_counter_t>(), P4_PD_READ_FROM_HARDWARE,
               kMostCells);
  add_server(metrics, server_.figures(), requests_);
  add_process(metrics, started_);
  return metrics.take();
}

}  // namespace tesselctl
