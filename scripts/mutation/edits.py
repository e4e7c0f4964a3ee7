"""One change to a text."""

from dataclasses import dataclass


@dataclass(frozen=True, order=True)
class Edit:
    """Replaces `before`, which stands at `start`, by `after`."""

    start: int
    before: str
    after: str

    @property
    def end(self) -> int:
        """Where the replaced text ends."""
        return self.start + len(self.before)

    def apply(self, text: str) -> str:
        """The changed text."""
        return text[: self.start] + self.after + text[self.end :]

    def lines_before(self, text: str) -> str:
        """The lines that the change touches, as one line."""
        first, last = self._line_bounds(text)
        return _as_one_line(text[first:last])

    def lines_after(self, text: str) -> str:
        """The same lines after the change."""
        first, last = self._line_bounds(text)
        return _as_one_line(text[first : self.start] + self.after + text[self.end : last])

    def _line_bounds(self, text: str) -> tuple[int, int]:
        end = text.find("\n", self.end)
        return text.rfind("\n", 0, self.start) + 1, end if end >= 0 else len(text)


def _as_one_line(text: str) -> str:
    return " ".join(text.split())
