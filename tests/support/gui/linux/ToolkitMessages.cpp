#include "tests/support/gui/ToolkitMessages.h"

#include <glib.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace mindloft::test {
namespace {

std::string Field(const GLogField* fields, gsize count, std::string_view key) {
  for (const auto* field = fields; field != fields + count; ++field) {
    if (field->key != key || !field->value) continue;
    auto text = static_cast<const char*>(field->value);
    return field->length < 0 ? std::string(text) : std::string(text, static_cast<std::size_t>(field->length));
  }
  return {};
}

GLogWriterOutput Write(GLogLevelFlags level, const GLogField* fields, gsize count, gpointer) {
  if (level & (G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING)) {
    ADD_FAILURE() << "message of the toolkit: " << Field(fields, count, "GLIB_DOMAIN") << ": "
                  << Field(fields, count, "MESSAGE");
  }
  return G_LOG_WRITER_HANDLED;
}

}  // namespace

void FailOnToolkitMessages() {
  // All ways of logging end in this function.
  g_log_set_writer_func(Write, nullptr, nullptr);
}

}  // namespace mindloft::test
