#include "msxml/TagGuard.h"

namespace msxml {

namespace {

/// Stands for every character that means nothing to a tag.
constexpr char kOther = '\x7F';

}  // namespace

bool CTagGuard::Take(const char* bytes, std::size_t count) {
  for (std::size_t i = 0; i < count && !HasTripped(); ++i) TakeByte(bytes[i]);
  return !HasTripped();
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
  TakeCharacter(high == '\0' ? low : kOther);
}

void CTagGuard::TakeCharacter(char c) {
  if (c == '\n') ++m_line;
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
      }
      break;
    case State::Value:
      if (c == m_quote) m_state = State::Tag;
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
