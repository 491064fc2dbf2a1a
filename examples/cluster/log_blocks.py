"""Cuts logs into blocks, so that surveys of the blocks count together what one survey of the logs does."""

import os
import re
import subprocess
import sys

LONG_LINE = 1 << 20


class Block:
    def __init__(self, path, begin, end):
        self.path, self.begin, self.end = path, begin, end

    def __str__(self):
        return f"{self.path}: bytes {self.begin} to {self.end}"


class Tool:
    """Runs the tool's survey here. `options` are those of a survey of a log."""

    def __init__(self, path, options):
        self.command, self.options = [path, "survey", "--format", "json"], options

    def run(self, options, text):
        command = self.command + options
        try:
            result = subprocess.run(command, input=text, capture_output=True, check=False)
        except OSError as error:
            sys.exit(f"survey_cluster: cannot run {command[0]}: {error.strerror}")
        if result.returncode not in (0, 2) or not result.stdout:
            sys.exit(f"survey_cluster: status {result.returncode} of {' '.join(command)}: {result.stderr.decode()}")
        return result.stdout, result.stderr.decode(errors="replace").strip()


def names_of(report):
    names = re.search(rb'"names":(\d+)', report)
    return int(names[1]) if names else 0


class Blocks:
    """The blocks of all files. `tell` is called for each file that cannot be read."""

    def __init__(self, paths, size, tool, tell):
        self.paths, self.size, self.tool, self.tell = paths, size, tool, tell
        self.total = sum(os.path.getsize(path) for path in paths if os.path.isfile(path))

    def __iter__(self):
        for path in self.paths:
            try:
                with open(path, "rb") as file:
                    yield from self.of_file(path, file)
            except OSError as error:
                self.tell(f"cannot read {path}: {error.strerror}")

    def of_file(self, path, file):
        if not os.path.isfile(path):
            return self.tell(f"cannot read {path}: it is no regular file, which can be read in blocks")
        _, trouble = self.tool.run(["--extract"], file.read(16))
        if trouble:  # it is compressed, say
            return self.tell(trouble.replace("standard input", path))
        size, begin = os.fstat(file.fileno()).st_size, 0
        while begin < size:
            end = min(self.cut(file, begin + self.size), size)
            yield Block(path, begin, end)
            begin = end

    def cut(self, file, at):
        """The first place after `at` between two lines that may be apart; infinity when the file ends before."""
        while True:
            file.seek(at)
            while (rest := file.readline(LONG_LINE)) and not rest.endswith(b"\n"):
                pass
            line = file.readline(LONG_LINE)
            at = file.tell()
            following = file.readline(LONG_LINE)
            if not following:
                return float("inf")
            is_whole = line.endswith(b"\n") and len(following) < LONG_LINE
            if is_whole and not self.belong_together(line, following):
                return at
            at += min(self.size, LONG_LINE)

    def belong_together(self, line, following):
        """Whether the second line counts once more when it is seen alone: the library logs some requests twice. Which,
        is for the tool to say."""
        if not all(b"[Kavrix][" in text for text in (line, following)):
            return False
        return self.names_in(line + following) != self.names_in(line) + self.names_in(following)

    def names_in(self, text):
        return names_of(self.tool.run(self.tool.options, text)[0])
