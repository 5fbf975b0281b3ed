"""Reads a calendar feed with a real iCalendar parser and prints its events as JSON:
summary, start (UTC, ISO) and alarms (action, trigger, description). Fails on a feed that
does not parse or an event without a start.

    python3 tests/e2e/read_calendar.py FEED.ics
"""
import json
import sys

import icalendar


def main(path):
    with open(path, "rb") as feed:
        calendar = icalendar.Calendar.from_ical(feed.read())
    events = []
    for event in calendar.walk("VEVENT"):
        alarms = [
            {
                "action": str(alarm.get("ACTION")),
                "trigger": str(alarm.decoded("TRIGGER")),
                "description": str(alarm.get("DESCRIPTION")),
            }
            for alarm in event.walk("VALARM")
        ]
        events.append(
            {
                "uid": str(event.get("UID")),
                "summary": str(event.get("SUMMARY")),
                "start": event.decoded("DTSTART").isoformat(),
                "alarms": alarms,
            }
        )
    json.dump(events, sys.stdout, ensure_ascii=False)


if __name__ == "__main__":
    main(sys.argv[1])
