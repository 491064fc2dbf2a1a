#!/usr/bin/python3
"""Surveys logs on a Dask cluster. Prints, byte for byte, what `kavrix-resource survey --extract FILE...` prints.

Cuts the files into blocks at line ends, runs the tool on a block on each worker and merges the reports as they come.
Workers open the files by the same absolute paths as this program does, so the files are on a shared file system. A file
is read up to the size that it has when its turn comes.

Exit status: 0; 2 when something is not in the report, or the tool told of trouble; standard error says what and where;
1 when nothing could be done: no report is printed.
"""

import argparse
import contextlib
import logging
import os
import re
import subprocess
import sys
import tempfile
import time
import uuid

from dask.utils import parse_bytes
from distributed import CancelledError, Client, TimeoutError as WaitedEnough, get_worker, wait
from log_blocks import Blocks, Tool, names_of

TRIES = 3
TOPIC = "kavrix-survey"
MOST_MESSAGES = 20  # of one block
MERGED_AT_ONCE = 32


def survey_block(command, path, begin, size):
    """Runs on a worker. Returns the report of the block, and what the tool told of it."""
    # Tells of each try: when the worker dies, Dask gives the block to another one without a word.
    get_worker().log_event(TOPIC, get_worker().get_current_task())
    report = b""
    with open(path, "rb") as file, tempfile.TemporaryFile() as messages:
        file.seek(begin)
        # When the tool reads no more, its status says why.
        with contextlib.suppress(BrokenPipeError), subprocess.Popen(
            command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=messages
        ) as tool:
            tool.stdin.write(b"\n")  # the first bytes would tell the format of a file, which those of a block are not
            while size > 0:
                part = file.read(min(size, 1 << 20))
                if not part:
                    tool.kill()
                    raise EOFError("the file has become shorter")
                tool.stdin.write(part)
                size -= len(part)
            tool.stdin.close()
            report = tool.stdout.read()
        messages.seek(0)
        lines = [line.decode(errors="replace").rstrip() for _, line in zip(range(MOST_MESSAGES + 1), messages)]
    if tool.returncode not in (0, 2) or not report:
        raise RuntimeError(f"{command[0]} ended with status {tool.returncode}: {' '.join(lines[:3])}")
    return report, lines


class Survey:
    def __init__(self, client, args):
        self.client, self.progress = client, args.progress
        self.merge_options = ["--merge"] + ["--no-examples"] * args.no_examples
        options = ["--extract"] + ["--json"] * args.json + ["--no-examples"] * args.no_examples
        self.tool = Tool(args.tool, options + (["--prefix", args.prefix] if args.prefix is not None else []))
        self.blocks = Blocks(args.files, args.block_size, self.tool, self.tell)
        self.in_trouble = False
        self.report, _ = self.tool.run(self.merge_options, b"")
        self.unmerged = []  # blocks with their reports
        self.in_flight = {}  # blocks by the key of their future
        self.done = self.bytes = self.names = self.tried_again = self.failed = 0
        client.subscribe_topic(TOPIC, self.count_start)

    def tell(self, message):
        self.in_trouble = True
        say(message)

    def count_start(self, event):
        if block := self.in_flight.get(event[1]):
            block.starts += 1
            self.tried_again += block.starts > 1

    def work(self):
        blocks, more, said = iter(self.blocks), True, time.monotonic()
        while more or self.in_flight:
            workers = self.client.scheduler_info()["workers"].values()
            most = 2 + 2 * sum(worker["nthreads"] for worker in workers)
            while more and len(self.in_flight) < most:
                if more := (block := next(blocks, None)) is not None:
                    block.starts = block.errors = 0
                    self.submit(block)
            self.take_finished()
            if time.monotonic() - said > self.progress:
                said = time.monotonic()
                self.show_progress()
        self.merge()
        self.show_progress()

    def submit(self, block):
        key = f"{TOPIC}-{uuid.uuid4()}"
        self.in_flight[key] = block
        command, path = self.tool.command + self.tool.options, os.path.abspath(block.path)
        size = block.end - block.begin
        block.future = self.client.submit(survey_block, command, path, block.begin, size, key=key, pure=False)

    def take_finished(self):
        futures = [block.future for block in self.in_flight.values()]
        with contextlib.suppress(WaitedEnough):
            wait(futures, timeout=self.progress, return_when="FIRST_COMPLETED")
        for future in [future for future in futures if future.done()]:
            try:
                result, error = future.result(), None
            except CancelledError:
                raise
            except Exception as exception:  # the tool's, the worker's, or Dask's, whose kinds change
                result, error = None, exception
            block = self.in_flight.pop(future.key)
            self.fail(block, error) if error else self.take(block, *result)

    def take(self, block, report, messages):
        block.future = None  # frees it
        for message in messages[:MOST_MESSAGES]:
            # The tool counts the line before the block.
            message = re.sub(r"(?<= -:)\d+|(?<=line at byte )\d+", lambda at: str(int(at[0]) - 1), message)
            self.tell(f"{block}: {message.replace(' -:', ' line ', 1).replace('standard input: ', '', 1)}")
        if len(messages) > MOST_MESSAGES:
            self.tell(f"{block}: and more messages")
        self.done += 1
        self.bytes += block.end - block.begin
        self.names += names_of(report)
        self.unmerged.append((block, report))
        if len(self.unmerged) == MERGED_AT_ONCE:
            self.merge()

    def fail(self, block, error):
        block.errors += 1
        if max(block.errors, block.starts) < TRIES:
            self.submit(block)
            return
        self.failed += 1
        self.tell(f"{block}: failed {TRIES} times and is left out: {error}")

    def merge(self):
        """Leaves out the reports that the tool refuses, such as those of another version."""
        unmerged, self.unmerged = self.unmerged, []
        report, trouble = self.tool.run(self.merge_options, self.report + b"".join(report for _, report in unmerged))
        if not trouble:
            self.report = report
            return
        for block, report in unmerged:
            self.report, trouble = self.tool.run(self.merge_options, self.report + report)
            if trouble:
                self.failed += 1
                self.tell(f"{block}: {trouble}")

    def show_progress(self):
        workers = len(self.client.scheduler_info()["workers"])
        say(
            f"{self.done} blocks, {self.bytes / 1e9:.3f} of {self.blocks.total / 1e9:.3f} GB, {self.names} names, "
            f"{self.tried_again} tried again, {self.failed} failed, {workers} workers"
        )


def say(message):
    print(f"survey_cluster: {message}", file=sys.stderr, flush=True)


def read_arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--scheduler", required=True, metavar="ADDRESS", help="of the Dask scheduler: tcp://HOST:PORT")
    parser.add_argument("--tool", default="kavrix-resource", help="the tool, here and on the workers (kavrix-resource)")
    parser.add_argument("--block-size", default="64MiB", type=parse_bytes, help="the least of a block (64MiB)")
    parser.add_argument("--progress", default=5, type=float, metavar="SECONDS", help="between lines of progress (5)")
    parser.add_argument("--prefix", help="as that of survey")
    parser.add_argument("--json", action="store_true", help="as that of survey: every line is JSON")
    parser.add_argument("--no-examples", action="store_true", help="as that of survey: names hold destinations")
    parser.add_argument("files", nargs="+", metavar="FILE", help="logs on a file system that the workers share")
    return parser.parse_args()


def main():
    args = read_arguments()
    logging.disable(logging.ERROR)  # of Dask: what goes wrong is told here
    try:
        with Client(args.scheduler) as client:
            survey = Survey(client, args)
            survey.work()
    except CancelledError:
        sys.exit(f"survey_cluster: lost the scheduler at {args.scheduler}")
    except OSError as error:
        sys.exit(f"survey_cluster: {error}")
    except KeyboardInterrupt:
        sys.exit(130)
    sys.stdout.buffer.write(survey.report)
    sys.exit(2 if survey.in_trouble else 0)


if __name__ == "__main__":
    main()
