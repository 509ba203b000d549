"""What stands in the record files of a planner while it runs."""

from desktop import wait_until


def record_file(kind, *records):
    """The text of the file of the kind, as "term", with these records; each is a dictionary by its tags."""
    def lines(record):
        return "".join(f"  <{tag}>{value}</{tag}>\n" for tag, value in record.items())

    return ('<?xml version="1.0" encoding="ISO-8859-1"?>\n' + f"<{kind}_data>\n" +
            "".join(f"<{kind}>\n{lines(record)}</{kind}>\n" for record in records) + f"</{kind}_data>\n")


def values(text, tag):
    """The values of a field in a record file, in order."""
    opening, closing = f"<{tag}>", f"</{tag}>"
    lines = (line.strip() for line in text.split("\n"))
    return [line[len(opening):-len(closing)] for line in lines if line.startswith(opening)]


def wait_for_record(test, file, **fields):
    """Waits until the fields of the records in the file of the test's program, in order, have these values."""
    def found():
        text = test.program.read_data(file)
        return {field: values(text, field) for field in fields}

    try:
        wait_until(lambda: found() == fields, "the file is written")
    except AssertionError:
        test.assertEqual(found(), fields)
