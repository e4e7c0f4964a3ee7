#include "LineSource.h"

#include "Errors.h"

#include <utility>

namespace vif {

namespace {

constexpr size_t kChunkSize = size_t{64} * 1024;

}  // namespace

CLineSource::CLineSource(std::istream& stream, std::string pathText)
    : m_stream(stream), m_pathText(std::move(pathText)), m_chunk(kChunkSize) {}

bool CLineSource::Next(std::string_view& line) {
  if (m_hasEnded) return false;
  m_line.clear();
  for (;;) {
    const size_t lineFeed = m_unread.find('\n');
    if (lineFeed != std::string_view::npos) {
      line = m_unread.substr(0, lineFeed);
      m_unread.remove_prefix(lineFeed + 1);
      break;
    }
    m_line += m_unread;
    if (!Refill()) {
      m_hasEnded = true;
      line = m_line;
      return !m_hasFailed;
    }
  }
  if (!m_line.empty()) line = m_line += line;
  return true;
}

bool CLineSource::Refill() {
  m_unread = {};
  if (!AwaitData()) return false;
  // Take only what the stream has already buffered, so that a later error loses none of it.
  const std::streamsize count = m_stream.readsome(m_chunk.data(), static_cast<std::streamsize>(m_chunk.size()));
  if (count > 0) {
    m_unread = {m_chunk.data(), static_cast<size_t>(count)};
  } else {
    // An unbuffered stream never has more ready than the character that was peeked at.
    m_chunk[0] = static_cast<char>(m_stream.get());
    m_unread = {m_chunk.data(), 1};
  }
  return true;
}

bool CLineSource::AwaitData() {
  try {
    if (m_stream.peek() != std::istream::traits_type::eof()) return true;
  } catch (const std::ios_base::failure& failure) {
    if (!m_stream.eof()) {
      ThrowRunTimeError("I/O read failure on Vendor Info File %s: %s", m_pathText, failure.what());
    }
  }
  m_hasFailed = !m_stream.eof();
  return false;
}

}  // namespace vif
