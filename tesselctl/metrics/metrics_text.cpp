#include "tesselctl/metrics/metrics_text.hpp"

#include "tesselctl/text/utf8.hpp"

namespace tesselctl {

namespace {

void append_labels(std::string &text, MetricsText::Labels labels) {
  for (const auto &[name, value] : labels) {
    if (value.empty()) continue;
    if (!text.empty()) text += ',';
    text += name;
    text += "=\"";
    for (const char c : printable(value)) {
      if (c == '"' || c == '\\') text += '\\';
      text += c;
    }
    text += '"';
  }
}

}  // namespace

std::string_view content_type(MetricsFormat format) {
  return format == MetricsFormat::open_metrics
             ? "application/openmetrics-text; version=1.0.0; charset=utf-8"
             : "text/plain; version=0.0.4; charset=utf-8";
}

MetricsText::MetricsText(MetricsFormat format, Labels of_all) : format_(format) {
  append_labels(of_all_, of_all);
}

void MetricsText::gauge(std::string_view name, std::string_view help, std::string_view unit) {
  name_ = name;
  family("gauge", help, unit);
}

void MetricsText::counter(std::string_view name, std::string_view help, std::string_view unit) {
  // The older format has the family go by the name of its samples.
  name_ = name;
  if (format_ == MetricsFormat::text) name_ += "_total";
  family("counter", help, unit);
  if (format_ == MetricsFormat::open_metrics) name_ += "_total";
}

void MetricsText::family(std::string_view type, std::string_view help, std::string_view unit) {
  text_ += fmt::format("# TYPE {} {}\n", name_, type);
  if (!unit.empty() && format_ == MetricsFormat::open_metrics) {
    text_ += fmt::format("# UNIT {} {}\n", name_, unit);
  }
  text_ += fmt::format("# HELP {} {}\n", name_, help);
}

void MetricsText::begin_sample(Labels labels) {
  std::string all = of_all_;
  append_labels(all, labels);
  text_ += name_;
  if (!all.empty()) text_ += '{' + all + '}';
  text_ += ' ';
}

std::string MetricsText::take() {
  if (format_ == MetricsFormat::open_metrics) text_ += "# EOF\n";
  return std::move(text_);
}

}  // namespace tesselctl
