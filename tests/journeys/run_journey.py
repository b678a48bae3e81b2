#!/usr/bin/env python3
"""Runs one journey of journeys.py against the staged program folder.

    run_journey.py NAME --program build/program --work build/journeys/NAME

Exit status 0 only when the journey ran to its end; a display that cannot
start, a window that never shows or a wrong pixel or file is a failure,
printed with its reason.
"""

import argparse
import os
import sys
import time
import traceback

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import journeys  # noqa: E402
from desktop import Desktop, JourneyFailed  # noqa: E402


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("name", choices=sorted(journeys.JOURNEYS))
    parser.add_argument("--program", required=True)
    parser.add_argument("--work", required=True)
    args = parser.parse_args()
    started = time.monotonic()
    try:
        with Desktop(args.name, args.program, args.work) as desktop:
            journeys.JOURNEYS[args.name](desktop)
    except JourneyFailed as failure:
        print("FAILED %s: %s" % (args.name, failure))
        print("screenshots and logs: " + args.work)
        return 1
    except Exception:  # a broken harness is a failure too, never a pass
        traceback.print_exc()
        print("FAILED %s: the journey broke (above); screenshots and logs: %s" % (args.name, args.work))
        return 1
    print("journey %s done in %.1f s" % (args.name, time.monotonic() - started))
    return 0


if __name__ == "__main__":
    sys.exit(main())
