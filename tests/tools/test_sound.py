"""The sound of the reminders: that the drive carries what tools/make-sound makes, and that it is short and soft."""
import pathlib
import struct
import subprocess
import tempfile
import unittest
import wave

ROOT = pathlib.Path(__file__).resolve().parents[2]
STORED = ROOT / "drive" / "Planovarium" / "Reminder.wav"
FULL = 32767  # the greatest that a sample can be


class Sound(unittest.TestCase):
    def samples(self):
        with wave.open(str(STORED), "rb") as file:
            self.assertEqual((file.getnchannels(), file.getsampwidth()), (1, 2))
            self.rate = file.getframerate()
            return struct.unpack(f"<{file.getnframes()}h", file.readframes(file.getnframes()))

    def test_that_is_stored_is_the_one_that_is_made(self):
        with tempfile.TemporaryDirectory() as folder:
            made = pathlib.Path(folder) / "made.wav"
            subprocess.run([ROOT / "tools" / "make-sound", made], check=True)
            self.assertEqual(made.read_bytes(), STORED.read_bytes())

    def test_is_shorter_than_a_second_at_a_common_rate(self):
        count = len(self.samples())
        self.assertIn(self.rate, (22050, 44100))
        self.assertLess(count, self.rate)
        self.assertGreater(count, self.rate // 4)

    def test_is_heard_and_never_loud(self):
        loudest = max(abs(sample) for sample in self.samples())
        self.assertGreater(loudest, FULL // 5)
        self.assertLess(loudest, FULL // 2)

    def test_begins_and_ends_in_silence(self):
        values = self.samples()
        for sample in (*values[:5], *values[-5:]):
            self.assertLess(abs(sample), FULL // 100)


if __name__ == "__main__":
    unittest.main()
