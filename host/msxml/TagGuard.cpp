#include "msxml/TagGuard.h"

#include "msxml/CountBytes.h"

#include <algorithm>
#include <cstring>

namespace msxml {

namespace {

/// Stands for every character that means nothing to a tag.
constexpr char kOther = '\x7F';

/// As std::find does, but many bytes at a time.
const char* FindByte(const char* begin, const char* end, char wanted) {
  const void* found = std::memchr(begin, wanted, static_cast<std::size_t>(end - begin));
  return found != nullptr ? static_cast<const char*>(found) : end;
}

}  // namespace

bool CTagGuard::Take(const char* bytes, std::size_t count) {
  const char* at = bytes;
  const char* end = bytes + count;
  while (at != end && !HasTripped()) {
    const char* marked = SkipDull(at, end);
    Remember({at, marked});
    at = marked;
    if (at != end) TakeByte(*at++);
  }
  if (!IsUtf16()) m_line += CountBytes({bytes, at}, [](char c) { return c == '\n'; });
  return !HasTripped();
}

/// The next byte that can change anything. Looked at byte by byte, a file took a tenth of a load's time; now a
/// fiftieth.
const char* CTagGuard::SkipDull(const char* at, const char* end) {
  if (m_form != Form::Bytes) return at;
  switch (m_state) {
    case State::Text: return FindByte(at, end, '<');
    case State::Opening: return SkipShortTag(at, end);
    case State::Value: return FindByte(at, FindByte(at, end, m_quote), '<');
    case State::Comment:
    case State::CData:
    case State::Instruction: return FindByte(at, end, '>');
    default: return at;
  }
}

/// There is no "<" in a tag. So when the next one is near, what stands before it cannot have too many attributes, and
/// need not be looked at. So it is with nearly all tags.
const char* CTagGuard::SkipShortTag(const char* at, const char* end) {
  if (*at == '!' || *at == '?') return at;
  const char* farthest = at + std::min(static_cast<std::size_t>(end - at), kMostAttributes);
  const char* next = FindByte(at, farthest, '<');
  if (next == farthest) return at;
  m_state = State::Text;
  return next;
}

/// Takes note of the end of what is skipped.
void CTagGuard::Remember(std::string_view skipped) {
  if (skipped.empty()) return;
  m_oneBefore = skipped.size() > 1 ? skipped[skipped.size() - 2] : m_last;
  m_last = skipped.back();
}

void CTagGuard::TakeByte(char byte) {
  switch (m_form) {
    case Form::Bytes: TakeCharacter(byte); break;
    case Form::LittleEndian:
    case Form::BigEndian: TakeHalf(byte); break;
    case Form::Unknown:
      m_firstByte = byte;
      m_form = Form::FirstByte;
      break;
    case Form::FirstByte:
      // A byte order mark, or the "<" that every file without one begins with.
      if ((m_firstByte == '\xFF' && byte == '\xFE') || (m_firstByte == '<' && byte == '\0')) {
        m_form = Form::LittleEndian;
      } else if ((m_firstByte == '\xFE' && byte == '\xFF') || (m_firstByte == '\0' && byte == '<')) {
        m_form = Form::BigEndian;
      } else {
        m_form = Form::Bytes;
        TakeCharacter(m_firstByte);
        TakeCharacter(byte);
        break;
      }
      m_hasHalf = true;
      TakeHalf(byte);
      break;
  }
}

void CTagGuard::TakeHalf(char byte) {
  m_hasHalf = !m_hasHalf;
  if (m_hasHalf) {
    m_firstByte = byte;
    return;
  }
  const char high = m_form == Form::BigEndian ? m_firstByte : byte;
  const char low = m_form == Form::BigEndian ? byte : m_firstByte;
  const char c = high == '\0' ? low : kOther;
  if (c == '\n') ++m_line;
  TakeCharacter(c);
}

void CTagGuard::TakeCharacter(char c) {
  const State before = m_state;
  switch (m_state) {
    case State::Text:
      if (c == '<') m_state = State::Opening;
      break;
    case State::Opening:
      m_attributes = 0;
      m_state = c == '!' ? State::Declaration : c == '?' ? State::Instruction : c == '>' ? State::Text : State::Tag;
      break;
    case State::Tag:
      if (c == '"' || c == '\'') {
        m_state = State::Value;
        m_quote = c;
      } else if (c == '=') {
        ++m_attributes;
      } else if (c == '>') {
        m_state = State::Text;
      } else if (c == '<') {
        m_state = State::Opening;
      }
      break;
    case State::Value:
      if (c == m_quote) m_state = State::Tag;
      // The file is malformed, but the parser goes on to look for mistakes, and takes this for the next tag.
      if (c == '<') m_state = State::Opening;
      break;
    case State::Declaration:
      if (c == '[') m_state = State::CData;
      if (c == '-') m_state = State::CommentOpening;
      if (c == '>') m_state = State::Text;
      break;
    case State::CommentOpening: m_state = State::Comment; break;
    case State::Comment: LeaveAtTwice('-', c); break;
    case State::CData: LeaveAtTwice(']', c); break;
    case State::Instruction:
      if (c == '>' && m_last == '?') m_state = State::Text;
      break;
  }
  // The hyphens that open a comment do not close it.
  const bool isOpening = m_state == State::CommentOpening || before == State::CommentOpening;
  m_oneBefore = isOpening ? '\0' : m_last;
  m_last = isOpening ? '\0' : c;
}

void CTagGuard::LeaveAtTwice(char twice, char c) {
  if (c == '>' && m_last == twice && m_oneBefore == twice) m_state = State::Text;
}

}  // namespace msxml
