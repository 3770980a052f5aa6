// SPDX-License-Identifier: Apache-2.0
// Splits formats into directives, collects arguments by them, and has snprintf(3) write each
// one.

#include "platform/system/Format.h"

#include <QByteArray>
#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string_view>

#include "platform/system/PDEObject.h"

namespace orvek {
namespace {

constexpr int widestField = 65535;

/// A "%" sequence: where it ends, and its pieces as printf(3) names them.
struct Directive {
  /// All of it, from "%" on.
  std::string_view text;
  std::string_view flags;
  /// Digits, "*" or nothing.
  std::string_view width;
  bool hasPrecision = false;
  /// Digits, "*" or nothing.
  std::string_view precision;
  std::string_view length;
  /// '\0': not a directive.
  char conversion = '\0';
};

class DirectiveParser {
 public:
  explicit DirectiveParser(std::string_view rest) : m_rest(rest) {}

  Directive parse() {
    Directive result;
    m_at = 1;
    result.flags = takeWhile("-+ #0'");
    result.width = takeNumber();
    if (peek() == '.') {
      ++m_at;
      result.hasPrecision = true;
      result.precision = takeNumber();
    }
    result.length = takeWhile("hlLqjzt");
    constexpr std::string_view conversions = "diouxXeEfFgGaAcsCSpn@%";
    if (conversions.find(peek()) != std::string_view::npos && peek() != '\0') {
      result.conversion = peek();
      ++m_at;
    }
    result.text = m_rest.substr(0, m_at);
    return result;
  }

 private:
  char peek() const { return m_at < m_rest.size() ? m_rest[m_at] : '\0'; }

  std::string_view takeWhile(std::string_view set) {
    const std::size_t begin = m_at;
    while (peek() != '\0' && set.find(peek()) != std::string_view::npos) ++m_at;
    return m_rest.substr(begin, m_at - begin);
  }

  std::string_view takeNumber() {
    if (peek() != '*') return takeWhile("0123456789");
    ++m_at;
    return m_rest.substr(m_at - 1, 1);
  }

  std::string_view m_rest;
  std::size_t m_at = 0;
};

/// Calls `literal(text)` and `directive(spec)` for the pieces of a format, in order.
template <class Literal, class OnDirective>
void walk(std::string_view format, Literal literal, OnDirective directive) {
  while (!format.empty()) {
    const std::size_t percent = std::min(format.find('%'), format.size());
    if (percent > 0) literal(format.substr(0, percent));
    format.remove_prefix(percent);
    if (format.empty()) return;
    const Directive spec = DirectiveParser(format).parse();
    directive(spec);
    format.remove_prefix(spec.text.size());
  }
}

bool isOneOf(char c, std::string_view set) {
  return set.find(c) != std::string_view::npos;
}

// The lists are begun by the callers of these three, which the analyzer does not follow.
// NOLINTBEGIN(clang-analyzer-valist.Uninitialized)
FormatArgument takeSigned(std::string_view length, std::va_list *arguments) {
  if (length == "hh") return std::int64_t{static_cast<signed char>(va_arg(*arguments, int))};
  if (length == "h") return std::int64_t{static_cast<short>(va_arg(*arguments, int))};
  if (length == "l") return std::int64_t{va_arg(*arguments, long)};
  if (length == "j") return std::int64_t{va_arg(*arguments, std::intmax_t)};
  if (length == "z" || length == "t") return std::int64_t{va_arg(*arguments, std::ptrdiff_t)};
  if (length.empty()) return std::int64_t{va_arg(*arguments, int)};
  return std::int64_t{va_arg(*arguments, long long)};
}

FormatArgument takeUnsigned(std::string_view length, std::va_list *arguments) {
  using U = std::uint64_t;
  if (length == "hh") return U{static_cast<unsigned char>(va_arg(*arguments, unsigned int))};
  if (length == "h") return U{static_cast<unsigned short>(va_arg(*arguments, unsigned int))};
  if (length == "l") return U{va_arg(*arguments, unsigned long)};
  if (length == "j") return U{va_arg(*arguments, std::uintmax_t)};
  if (length == "z" || length == "t") return U{va_arg(*arguments, std::size_t)};
  if (length.empty()) return U{va_arg(*arguments, unsigned int)};
  return U{va_arg(*arguments, unsigned long long)};
}

FormatArgument takeArgument(const Directive &spec, std::va_list *arguments) {
  const bool isLong = spec.length == "l";
  if (isOneOf(spec.conversion, "di")) return takeSigned(spec.length, arguments);
  if (isOneOf(spec.conversion, "ouxX")) return takeUnsigned(spec.length, arguments);
  if (isOneOf(spec.conversion, "cC")) return std::int64_t{va_arg(*arguments, int)};
  if (isOneOf(spec.conversion, "eEfFgGaA")) {
    if (spec.length == "L") return va_arg(*arguments, long double);
    return va_arg(*arguments, double);
  }
  if (spec.conversion == '@') return va_arg(*arguments, const PDEObject *);
  if (spec.conversion == 'S' || (spec.conversion == 's' && isLong)) {
    return va_arg(*arguments, const wchar_t *);
  }
  if (spec.conversion == 's') return va_arg(*arguments, const char *);
  return static_cast<const void *>(va_arg(*arguments, void *));
}
// NOLINTEND(clang-analyzer-valist.Uninitialized)

/// Hands out the arguments in order.
class ArgumentQueue {
 public:
  explicit ArgumentQueue(const std::vector<FormatArgument> &arguments) : m_arguments(arguments) {}

  /// The next argument, or nothing where it is missing or of another kind (it then stays).
  template <class T>
  std::optional<T> take() {
    if (m_next >= m_arguments.size()) return std::nullopt;
    const T *value = std::get_if<T>(&m_arguments[m_next]);
    if (value == nullptr) return std::nullopt;
    ++m_next;
    return *value;
  }

  std::size_t mark() const { return m_next; }
  void returnTo(std::size_t mark) { m_next = mark; }

 private:
  const std::vector<FormatArgument> &m_arguments;
  std::size_t m_next = 0;
};

/// One directive written out; nothing where its arguments are not there.
class Writer {
 public:
  Writer(const Directive &spec, ArgumentQueue *queue) : m_spec(spec), m_queue(queue) {}

  std::optional<QByteArray> write() {
    if (m_spec.conversion == '%') return QByteArray("%");
    if (!readField()) return std::nullopt;
    const char c = m_spec.conversion;
    if (isOneOf(c, "di")) return number<std::int64_t>("ll");
    if (isOneOf(c, "ouxX")) return number<std::uint64_t>("ll");
    if (isOneOf(c, "cC")) return character();
    if (isOneOf(c, "eEfFgGaA")) {
      return m_spec.length == "L" ? number<long double>("L") : number<double>("");
    }
    if (c == 'p') return number<const void *>("");
    if (c == 'n') return m_queue->take<const void *>() ? std::optional(QByteArray()) : std::nullopt;
    return text();
  }

 private:
  bool readField() {
    return readSize(m_spec.width, &m_width) && readSize(m_spec.precision, &m_precision);
  }

  bool readSize(std::string_view digits, int *size) {
    if (digits != "*") {
      *size = 0;
      for (char digit : digits) *size = std::min(*size * 10 + (digit - '0'), widestField);
      return true;
    }
    const auto given = m_queue->take<std::int64_t>();
    if (given) {
      *size = static_cast<int>(std::clamp<std::int64_t>(*given, -widestField, widestField));
    }
    return given.has_value();
  }

  std::string pattern(std::string_view length, char conversion) const {
    std::string result("%");
    result += m_spec.flags;
    if (m_width < 0) result += '-';
    if (m_width != 0) result += std::to_string(std::abs(m_width));
    if (m_spec.hasPrecision && m_precision >= 0) {
      result += '.';
      result += std::to_string(m_precision);
    }
    result += length;
    result += conversion;
    return result;
  }

  template <class T>
  QByteArray print(const std::string &format, T value) const {
    const int size = std::snprintf(nullptr, 0, format.c_str(), value);
    if (size <= 0) return {};
    QByteArray result(size, '\0');
    std::snprintf(result.data(), static_cast<std::size_t>(size) + 1, format.c_str(), value);
    return result;
  }

  template <class T>
  std::optional<QByteArray> number(std::string_view length) {
    const auto value = m_queue->take<T>();
    if (!value) return std::nullopt;
    return print(pattern(length, m_spec.conversion), *value);
  }

  std::optional<QByteArray> character() {
    const auto value = m_queue->take<std::int64_t>();
    if (!value) return std::nullopt;
    const bool wide = m_spec.conversion == 'C' || m_spec.length == "l";
    if (!wide) return print(pattern("", 'c'), static_cast<int>(*value));
    const auto codePoint = static_cast<char32_t>(*value);
    return padded(QString::fromUcs4(&codePoint, 1).toUtf8());
  }

  std::optional<QByteArray> text() {
    if (m_spec.conversion == '@') {
      const auto object = m_queue->take<const PDEObject *>();
      if (!object) return std::nullopt;
      return padded(*object == nullptr ? QByteArray("(null)") : (*object)->description().toUtf8());
    }
    if (const auto wide = m_queue->take<const wchar_t *>()) {
      return padded(*wide == nullptr ? QByteArray("(null)")
                                     : QString::fromWCharArray(*wide).toUtf8());
    }
    const auto bytes = m_queue->take<const char *>();
    if (!bytes) return std::nullopt;
    // Not copied first: with a precision the bytes need not end in a zero byte.
    return print(pattern("", 's'), *bytes == nullptr ? "(null)" : *bytes);
  }

  QByteArray padded(const QByteArray &value) const {
    return print(pattern("", 's'), value.constData());
  }

  const Directive &m_spec;
  ArgumentQueue *m_queue;
  int m_width = 0;
  int m_precision = 0;
};

}  // namespace

std::vector<FormatArgument> collectArguments(const char *format, std::va_list arguments) {
  std::vector<FormatArgument> result;
  if (format == nullptr) return result;
  std::va_list rest;
  va_copy(rest, arguments);
  walk(
      format, [](std::string_view) {},
      [&](const Directive &spec) {
        if (spec.conversion == '\0' || spec.conversion == '%') return;
        if (spec.width == "*") result.emplace_back(std::int64_t{va_arg(rest, int)});
        if (spec.precision == "*") result.emplace_back(std::int64_t{va_arg(rest, int)});
        result.push_back(takeArgument(spec, &rest));
      });
  va_end(rest);
  return result;
}

QString expandFormat(const std::string &format, const std::vector<FormatArgument> &arguments) {
  QByteArray result;
  ArgumentQueue queue(arguments);
  const auto append = [&result](std::string_view text) {
    result.append(text.data(), static_cast<qsizetype>(text.size()));
  };
  walk(format, append, [&](const Directive &spec) {
    const std::size_t mark = queue.mark();
    const auto written = spec.conversion == '\0' ? std::nullopt : Writer(spec, &queue).write();
    if (written) {
      result += *written;
    } else {
      queue.returnTo(mark);
      append(spec.text);
    }
  });
  return QString::fromUtf8(result);
}

}  // namespace orvek
