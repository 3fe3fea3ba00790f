// Numbers in the text formats of monitoring systems: metric families, each with a help line and
// its samples.
#pragma once

#include <fmt/format.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace tesselctl {

// The older text format is what tools that do not ask for OpenMetrics read.
enum class MetricsFormat : uint8_t { open_metrics, text };
std::string_view content_type(MetricsFormat format);

class MetricsText {
 public:
  struct Label {
    std::string_view name;
    std::string_view value;
  };
  using Labels = std::initializer_list<Label>;

  // Every sample has the labels of all.
  MetricsText(MetricsFormat format, Labels of_all);

  // Begins a family, to which the samples that follow belong. The name of one with a unit ends in
  // it; samples of counters get "_total" behind the name.
  void gauge(std::string_view name, std::string_view help, std::string_view unit = {});
  void counter(std::string_view name, std::string_view help, std::string_view unit = {});
  template <class Value>
  void sample(Value value, Labels labels = {}) {
    begin_sample(labels);
    fmt::format_to(std::back_inserter(text_), "{}\n", value);
  }

  std::string take();

 private:
  void family(std::string_view type, std::string_view help, std::string_view unit);
  void begin_sample(Labels labels);

  MetricsFormat format_;
  std::string of_all_;
  std::string name_;  // of the samples
  std::string text_;
};

}  // namespace tesselctl
