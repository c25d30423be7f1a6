#!/usr/bin/env python3
"""Prints "PASSED FAILED SKIPPED" for one run of a GoogleTest program, from its JSON report and its exit status.

    tools/gtest_totals.py REPORT.json EXIT_STATUS

A program that crashed leaves no report and counts as one failure; so do a report without tests and a program that
fails although all of its tests passed (a suite's set-up that failed, or a leak found at the end).
"""
import json
import sys


def totals(report):
    passed = failed = skipped = 0
    for suite in report["testsuites"]:
        for test in suite["testsuite"]:
            if test["result"] == "SKIPPED" or test["status"] == "NOTRUN":
                skipped += 1
            elif test.get("failures"):
                failed += 1
            else:
                passed += 1
    return passed, failed, skipped


def main(path, exit_status):
    try:
        with open(path, encoding="utf-8") as file:
            passed, failed, skipped = totals(json.load(file))
    except (OSError, ValueError, LookupError):
        passed, failed, skipped = 0, 1, 0
    if failed == 0 and (exit_status != "0" or passed + skipped == 0):
        failed = 1
    print(passed, failed, skipped)


if __name__ == "__main__":
    main(*sys.argv[1:])
