#include "msxml/TagGuard.h"

namespace msxml {

bool CTagGuard::Take(const char* bytes, std::size_t count) {
  for (std::size_t i = 0; i < count && !HasTripped(); ++i) {
    const char c = bytes[i];
    if (c == '\0') continue;  // half of a UTF-16 character
    TakeCharacter(c);
    if (c == '\n') ++m_line;
    m_oneBefore = m_last;
    m_last = c;
  }
  return !HasTripped();
}

void CTagGuard::TakeCharacter(char c) {
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
      if (c == '-') m_state = State::Comment;
      if (c == '>') m_state = State::Text;
      break;
    case State::Comment: LeaveAtTwice('-', c); break;
    case State::CData: LeaveAtTwice(']', c); break;
    case State::Instruction:
      if (c == '>' && m_last == '?') m_state = State::Text;
      break;
  }
}

void CTagGuard::LeaveAtTwice(char twice, char c) {
  if (c == '>' && m_last == twice && m_oneBefore == twice) m_state = State::Text;
}

}  // namespace msxml
