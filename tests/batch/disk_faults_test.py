"""What a disk can do to a hull: it is full, read-only or gone, or the program is killed while it saves.
"default.tvh" is always whole, and never older than the last save that was told to be done. And what a
hull file says can't make the program write anywhere but where the user sent it."""

import os
import pathlib
import random
import shutil
import stat
import subprocess
import sys
import tempfile
import time
import unittest

SAVER, PROGRAM, DATA = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
del sys.argv[1:4]
CHINES = 4
FRAME_LINE = 1 + 15 * CHINES + 1 + 39 * CHINES
LINES = FRAME_LINE + 8 + 7 + 2 + 5 + 4


def tree(folder):
    """Every file below a folder with its bytes, and every folder."""
    return {path.relative_to(folder).as_posix(): path.read_bytes() if path.is_file() else None
            for path in pathlib.Path(folder).rglob("*")}


class InScratchFolder(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name).resolve()


class DiskTest(InScratchFolder):
    def setUp(self):
        super().setUp()
        self.file = self.folder / "default.tvh"

    def number(self, file=None):
        """The number of the save that a whole file holds."""
        text = (file or self.file).read_bytes().decode()
        self.assertTrue(text.endswith("\r\n"))
        lines = text.split("\r\n")[:-1]
        self.assertEqual(len(lines), LINES)
        self.assertEqual(lines[FRAME_LINE], lines[-1], "the front and the end are of one save")
        save = int(lines[-1])
        self.assertEqual(len(lines[FRAME_LINE + 8 + 7 + 2 + 1]), save * 7 % 3000)
        return save

    def start(self, command=(SAVER,), **options):
        saver = subprocess.Popen(list(map(str, command)), stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
                                 **{"cwd": self.folder, **options})
        self.addCleanup(self.stop, saver)
        return saver

    def stop(self, saver):
        saver.kill()
        saver.wait()
        for stream in (saver.stdin, saver.stdout):
            try:
                stream.close()
            except BrokenPipeError:
                pass

    def save(self, saver):
        saver.stdin.write("\n")
        saver.stdin.flush()
        return saver.stdout.readline().strip()

    def test_killed_at_any_moment_of_200_saves(self):
        chance = random.Random(200)
        for _ in range(15):
            saver = self.start()
            saver.stdin.write("\n" * 200)
            saver.stdin.flush()
            told = 0
            for _ in range(chance.randrange(1, 190)):
                told = int(saver.stdout.readline())
            time.sleep(chance.random() / 1000)
            saver.kill()
            saver.wait()
            self.assertGreaterEqual(self.number(), told, "what was told to be saved is there")
        read = subprocess.run([PROGRAM, "points", self.file], capture_output=True, text=True)
        self.assertEqual((read.returncode, read.stderr), (0, ""))

        an_hour_ago = time.time() - 3600
        for path in self.folder.iterdir():
            os.utime(path, (an_hour_ago, an_hour_ago))
        self.assertEqual(self.save(self.start()), "1")
        self.assertEqual(list(tree(self.folder)), ["default.tvh"], "the killed saves leave nothing in the end")

    def test_two_programs_that_save_at_once(self):
        savers = [self.start(), self.start()]
        for saver in savers:
            saver.stdin.write("\n" * 200)
            saver.stdin.close()
        for saver in savers:
            self.assertEqual(saver.stdout.read().split(), [str(save) for save in range(1, 201)])
        self.assertEqual(self.number(), 200)
        self.assertEqual(list(tree(self.folder)), ["default.tvh"])

    def test_a_full_disk(self):
        self.save(self.start())
        limited = self.start(["bash", "-c", 'ulimit -f 2 && exec "$0"', SAVER])
        for _ in range(3):
            self.assertIn("failed", self.save(limited))
        self.assertEqual(self.number(), 1)
        self.assertEqual(list(tree(self.folder)), ["default.tvh"])

    @unittest.skipUnless(shutil.which("unshare"), "no disk of its own can be made here")
    def test_a_full_disk_of_its_own(self):
        script = """
            mount -t tmpfs -o size=96k none "$1" || exit 77
            cd "$1"
            echo | "$2" && cp default.tvh first
            head -c 200000 /dev/zero > filler 2>/dev/null
            printf '\\n\\n' | "$2"
            cmp first default.tvh && ls
            "$3" patterns --into . >/dev/null 2>&1; echo "status $?"
            cmp first default.tvh && ls
            rm filler
            echo | "$2"
        """
        done = subprocess.run(["unshare", "--user", "--map-root-user", "--mount", "bash", "-c", script, "bash",
                               self.folder, SAVER, PROGRAM], capture_output=True, text=True)
        if done.returncode in (1, 77) and not done.stdout:
            self.skipTest("no disk of its own may be made here: " + done.stderr.strip())
        full = "failed No space left on device"
        names = ["default.tvh", "filler", "first"]
        self.assertEqual(done.stdout.splitlines(), ["1", full, full, *names, "status 1", *names, "1"], done.stderr)

    def test_a_folder_that_may_only_be_read(self):
        self.save(self.start())
        self.file.chmod(0o444)
        self.assertEqual(self.save(self.start()), "failed is read-only")
        self.assertEqual(self.number(), 1)
        self.assertEqual(stat.S_IMODE(self.file.stat().st_mode), 0o444)
        self.file.chmod(0o644)

        options = {}
        saver = SAVER
        if os.getuid() == 0:  # whom no folder refuses; so the saver runs as somebody else
            saver = shutil.copy(SAVER, self.folder / "saver")
            shutil.chown(self.file, 65534, 65534)
            options = {"user": 65534, "group": 65534, "extra_groups": []}
        self.folder.chmod(0o555)
        self.addCleanup(self.folder.chmod, 0o755)
        before = tree(self.folder)
        self.assertIn("failed", self.save(self.start([saver], **options)))
        self.assertEqual(tree(self.folder), before)

    def test_a_folder_that_goes_away(self):
        work = self.folder / "work"
        work.mkdir()
        saver = self.start(cwd=work)
        self.assertEqual(self.save(saver), "1")
        gone = work.rename(self.folder / "gone")
        self.assertEqual(self.save(saver), "failed No such file or directory")
        self.assertEqual(self.number(gone / "default.tvh"), 1)
        work.mkdir()
        self.assertEqual(self.save(saver), "3", "it saves again as soon as the folder is back")
        self.assertEqual(self.number(work / "default.tvh"), 3)

        script = 'mkdir lost && cd lost && rmdir ../lost && exec "$0" patterns'
        done = subprocess.run(["bash", "-c", script, PROGRAM], cwd=self.folder, capture_output=True, text=True)
        self.assertEqual(done.returncode, 1)
        self.assertTrue(done.stderr)
        self.assertEqual(sorted(tree(self.folder)), ["gone", "gone/default.tvh", "work", "work/default.tvh"])


class StrangersTest(InScratchFolder):
    """Hull files that somebody sent: what they say is data, never a place to write to."""

    WAYS_OUT = ["../evil.tvh", "..\\..\\evil", "/tmp/tarve-evil", "~/evil", "$(touch evil)", "%n%s", "a\0b",
                "C:\\evil", "../../../evil.uc", "|touch evil"]

    def strangers_hull(self, name):
        """A sample hull whose every text, frame and rig box is a way out of its folder."""
        lines = (DATA / "hulls" / "pram.tvh").read_bytes().decode().split("\r\n")
        chines = int(lines[0])
        first_box = 1 + 15 * chines + 1 + 39 * chines + 8
        for i in range(first_box, first_box + 7 + 2 + 5):
            lines[i] = self.WAYS_OUT[i % len(self.WAYS_OUT)]
        hull = self.folder / "mail" / name
        hull.parent.mkdir(exist_ok=True)
        hull.write_bytes("\r\n".join(lines).encode())
        return hull

    def test_texts_and_names_lead_nowhere(self):
        for folder in ("a/b/work", "a/b/out", "a/b/export", "mail"):
            (self.folder / folder).mkdir(parents=True)
        (self.folder / "a/b/out/hull.dat").write_text(" 1 \r\n" * 10 + str(self.folder / "a") + "\r\n")
        for name in ("boat.tvh", "..\\..\\evil.tvh", "..boat..tvh", ".tvh", "\\etc\\boat.tvh", "a b;c$(d).tvh"):
            hull = self.strangers_hull(name)
            before = tree(self.folder)
            done = subprocess.run([PROGRAM, "patterns", hull, "--into", "../out", "--export-path", "../export",
                                   "--dxf", "--hpgl", "--text"], cwd=self.folder / "a/b/work", capture_output=True,
                                  text=True)
            self.assertEqual(done.returncode, 0, name + ": " + done.stderr)
            after = tree(self.folder)
            changed = {path for path in after.keys() | before.keys() if after.get(path) != before.get(path)}
            where = {path.rsplit("/", 1)[0] for path in changed}
            self.assertEqual(where, {"a/b/out", "a/b/export"}, name)
            self.assertIn("a/b/export/transom.dxf", changed)
            for path in changed:
                (self.folder / path).unlink()
        self.assertFalse(pathlib.Path("/tmp/tarve-evil").exists())


if __name__ == "__main__":
    unittest.main()
