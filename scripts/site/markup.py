"""What the pages of the site have in common: names, anchors and links in Markdown that Doxygen reads."""
import html
import re


def slug(text):
    """The text as an anchor, as code hosts make it of a heading."""
    return re.sub(r"[^\w\- ]", "", text.lower()).strip().replace(" ", "-")


def code_spans_as_html(text):
    return re.sub(r"`([^`]+)`", lambda span: f"<code>{html.escape(span[1])}</code>", text)


def link(target, text):
    """A link in HTML, because Doxygen's own cannot have code in their texts."""
    return f'<a href="{html.escape(target)}">{code_spans_as_html(text)}</a>'


def escape(text):
    """Plain text as Markdown in a table. Doxygen would take some characters for commands, tags, links or quotations."""
    text = re.sub(r"([\\@#%$|*`\[\]])", r"\\\1", text)
    return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;").replace('"', "&quot;")


def header_page(header):
    """The name of the page that Doxygen writes about a header."""
    name = header.rsplit("/", 1)[-1]
    return name.replace("_", "__").replace(".", "_8") + ".html"
