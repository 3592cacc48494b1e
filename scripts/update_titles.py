"""Reads titles from the standard input, one on a line, and makes the given tables have just those.
A title that is new is its own English translation, and is left open in other languages. With --check
nothing is changed: it fails if an English table isn't so already."""
import sys
import xml.etree.ElementTree as ET


def update(path, titles):
    tree = ET.parse(path)
    context = tree.getroot().find("context")
    is_english = tree.getroot().get("language", "").startswith("en")
    messages = {message.findtext("source"): message for message in context.findall("message")}
    for message in messages.values():
        context.remove(message)
    for title in titles:
        message = messages.get(title)
        if message is None:
            message = ET.Element("message")
            ET.SubElement(message, "source").text = title
            translation = ET.SubElement(message, "translation")
            if is_english:
                translation.text = title
            else:
                translation.set("type", "unfinished")
        context.append(message)
    ET.indent(tree, "    ")
    with open(path, "wb") as file:
        file.write(b'<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n')
        tree.write(file, encoding="utf-8")
        file.write(b"\n")


def check(path, titles):
    messages = ET.parse(path).getroot().iter("message")
    table = {message.findtext("source"): message.findtext("translation") for message in messages}
    if table != {title: title for title in titles}:
        sys.exit(f"{path} differs: run scripts/update_titles")


if __name__ == "__main__":
    wanted = sorted(set(sys.stdin.read().splitlines()))
    tables = [argument for argument in sys.argv[1:] if argument != "--check"]
    for table in tables:
        (update if tables == sys.argv[1:] else check)(table, wanted)
