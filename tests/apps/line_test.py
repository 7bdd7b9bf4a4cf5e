"""The line application from outside: what it shows, its record and its exit status on each occasion.
Usage: line_test.py LINE LINE_DEVICE [unittest's arguments]"""
import glob, json, os, pty, re, signal, subprocess, sys, tempfile, unittest

LINE, DEVICE = map(os.path.abspath, sys.argv[1:3])


class LineTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def path(self, name, content=None):
        path = os.path.join(self.folder.name, name)
        if content is not None:
            with open(path, "w") as file:
                file.write(content)
        return path

    def records(self):
        found = []
        for path in sorted(glob.glob(self.path("records/*.json")), key=os.path.getmtime):
            with open(path) as file:
                found.append(json.load(file))
        return found

    def run_line(self, status, *arguments, program=LINE):
        """The output of both kinds, after a run of which the exit status is compared."""
        result = subprocess.run([program, *arguments], cwd=self.folder.name, text=True, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL)
        self.assertEqual(result.returncode, status, f"{arguments}\n{result.stdout}")
        return result.stdout

    def in_terminal(self, answer, *arguments):
        """Exit status and output of a run in a terminal, where answer() serves each question."""
        pid, terminal = pty.fork()
        if pid == 0:
            os.chdir(self.folder.name)
            os.execv(LINE, [LINE, *arguments])
        output, asked = b"", 0
        while True:
            try:
                output += os.read(terminal, 65536)
            except OSError:
                break
            while output.count(b"[y/n] ") > asked:
                asked += 1
                answer(pid, terminal)
        os.close(terminal)
        return os.waitstatus_to_exitcode(os.waitpid(pid, 0)[1]), output.decode()

    def test_a_good_phone_passes_and_is_on_record(self):
        output = self.run_line(0, "--dut", "P-1", "--station-id", "line-3")
        self.assertRegex(output, r"(?m)^PASS  P-1: \d+ passed, 0 failed, .* of simulated time on the simulated phone$")
        self.assertRegex(output, r"battery\.charge 85 % \[50\.\.100\] PASS")
        self.assertNotRegex(output, "FAIL|NOT RUN|[\033\r]")
        self.assertTrue(os.path.exists(self.path(re.search(r"(?m)^page: (.*)$", output)[1])))
        record, = self.records()
        self.assertEqual((record["dut"], record["station"], record["verdict"]), ("P-1", "line-3", "passed"))
        # Nobody has judged what has no limit and needs an eye; everything else that can be judged is.
        verdicts = {test["name"]: test["verdict"] for test in record["tests"]}
        self.assertEqual([verdicts[name] for name in ("speaker", "contrast", "roaming", "library", "clock", "battery")],
                         ["skipped", "skipped", "not_judged", "not_judged", "passed", "passed"])
        self.run_line(0, "--repeat", "2", "library")
        self.assertEqual(len(glob.glob(self.path("records/*.log"))), 3)

    def test_a_bad_phone_fails_by_its_measures(self):
        phone = self.path("bad.phone", "set battery 0\nset signal 0\nset registration 3\nset ^SCKA 0\nset +CPAS 5\n"
                          "set hanging-key 42\n")
        tests = ("battery", "signal", "registration", "SIM-Card", "activity", "adc", "hanging-key")
        output = self.run_line(1, "--phone", phone, *tests)
        for measure in ("battery.charge 0 % [50..100] FAIL", "signal.strength -113 dBm [-95..-51] FAIL",
                        "registration.state denied [home|roaming] FAIL", "sim-card.card no card [present] FAIL",
                        "activity.state asleep [ready] FAIL", "hanging-key.key 42 [0..0] FAIL", "adc.average 820 [700..900] PASS"):
            self.assertIn(measure, output)
        with open(glob.glob(self.path("records/*.xml"))[0]) as file:
            self.assertIn('<failure message="battery.charge 0 % [50 to 100 %] FAIL"', file.read())
        # The second request is answered with nothing, which the status of the first must not pass for good.
        phone = self.path("pin.phone", "reply QLIB_SendSync 1 - 01 00\nreply QLIB_SendSync 1 0 00\n")
        self.assertIn("GPIO_GET_IN(iGPIONum = 0, iValue = 0, iStatus = 1) - Wrong status = 1",
                      self.run_line(1, "--phone", phone, "pin"))
        phone = self.path("erased.phone", f"nv 550 08 0A {'00 ' * 7}\n")
        self.assertIn("not an IMEI", self.run_line(1, "--phone", phone, "imei"))
        self.assertIn("bad.phone:1", self.run_line(2, "--phone", self.path("bad.phone", "set batery 0\n")))

    def test_limits_decide(self):
        station = self.path("line.station", "run = [Battery, sim-card, adc, messages]\nretry = 1\n[limits]\n"
                            "battery.charge = 90..100 %\nsim-card.card = no card|absent\nadc.average = ..820\n")
        output = self.run_line(1, "--station", station)
        self.assertRegex(output, r"FAIL +battery +battery\.charge 85 % \[90\.\.100\] FAIL\n")
        self.assertRegex(output, r"sim-card\.card present \[no card\|absent\] FAIL\n.*after 2 attempts")
        self.assertRegex(output, r"PASS +adc ")
        output = self.run_line(1, "--station", station, "--limits.sim-card.card=present", "--stop-on-fail")
        self.assertRegex(output, r"NOT RUN +messages +stopped after battery")
        self.assertRegex(output, r"PASS +switch-off ")
        self.assertIn("took 23 s, longer than its limit of 5 s", self.run_line(1, "--time-limit", "5", "switch-on"))

    def test_wrong_options_are_refused_before_a_phone_is_touched(self):
        values = self.path("values", "imei 08 4A 09 51 24 30 32 57 81\nbluetooth-address 01 02 03 A0 B0 C0\n"
                           f"serial-number {'37 ' * 16}\npublic-key {'A5 ' * 260}A5\n")
        freeze = ["freeze", "--freeze-values", values]
        confirmed = "--i-know-freezing-cannot-be-undone"
        for arguments, words in (
                (["swich-on"], "near: switch-on"), (["--port", "0"], "--port"), (["--unknown"], "--unknown"),
                (["--refuse", "QLIB_NOSUCH"], "no operation"), (["--refuse", "QLIB_IsFTM_Mode:0"], "1 or more"),
                (["mute", "--imei", "490154203237518"], "--imei has no effect"), (["mute", "--all"], "exclude"),
                (["speaker"], "--operator"), (["mute", "--operator"], "needs a terminal"),
                (["imei-write", "--imei", "490154203237519"], "15 digits"), (["imei-write"], "15 digits"),
                (freeze, confirmed), (["freeze", confirmed], "--freeze-values"),
                ([*freeze, confirmed], "'public-key' with 260 bytes in hexadecimal digits; there are 261"),
                (["--records", values], "cannot be made"), (["upload", "--upload", "no-file"], "image")):
            self.assertIn(words, self.run_line(2, *arguments))
        for line, words in (("port = 0", "range"), ("[limits]\nclock.none = 1", "no such key: limits.clock.none"), ("[limits]\nbattery.charge = 1..2 V", "unit has to be %"),
                            ("[limits]\nadc.average = 2..1", "above"), ("[limits]\nadc.average = a..1", "no limits"),
                            ("retry = 1\nretry = 2", "second time"), ("run = mute swich-on", "near: switch-on"),
                            ("gsm-channel = 1024", "range"), ("imei = 490154203237518", "no such key")):
            output = self.run_line(2, "--station", self.path("bad.station", line))
            self.assertIn(f"bad.station:{line.count(chr(10)) + 1}: ", output)
            self.assertIn(words, output)
        self.assertFalse(self.records())

    def test_a_failure_names_its_first_step_and_the_phone_is_switched_off(self):
        for refused, name, shown in (
                ("QLIB_DIAG_VERNO_F", "software", r"FAIL +software .*\n.*failure in the log: QLIB_DIAG_VERNO_F\(\) - Failure\n"
                 r".*TANDEKOR_CheckSWBuild\n(.*\n)* +PASS +switch-off "),
                ("QLIB_IsFTM_Mode", "model", r"FAIL .* switch-on .*\n(.*\n)* +NOT RUN +model (.*\n)* +PASS .*switch-off "),
                ("QLIB_ConnectServer", "battery", r"FAIL +connect .*\n(.*\n)* +NOT RUN +battery +not connected"),
                ("QLIB_SendSync", "nand-flash", r"failure in the log: .*NAND_FLASH_ID\(\) - SendSync\(\) fail"),
                ("QLIB_SendRAW", "mute", r"exchange with the phone failed"),
                ("QLIB_FTM_CDMA_CW_WAVEFORM", "tx-wcdma", r"failure in the log: .*\(bSelectCW = \\x01\) - Failure"),
                ("QLIB_FTM_SET_MODE", "tx-gsm", r"no power at level 5\n(?!.*may still be on)"),
                ("QLIB_FTM_SET_TX_OFF", "tx-wcdma", r"may still be on\n(.*\n)* +FAIL +transmitter-off ")):
            self.assertRegex(self.run_line(1, "--refuse", refused, name), shown)

    def test_a_real_phone_is_left_as_it_was_unless_told_otherwise(self):
        self.run_line(1, program=DEVICE)  # there is no boot box: what would have run is not run
        self.run_line(1, "--all", program=DEVICE)
        careful, everything = ({test["name"]: test["changes"] for test in record["tests"]} for record in self.records())
        self.assertEqual(set(careful.values()), {"nothing"})
        self.assertLess({"roaming", "tx-gsm", "online", "signal", "clock"}, everything.keys() - careful.keys())
        self.assertFalse({"freeze", "imei-write", "upload"} & everything.keys())

    def test_the_operator_judges_what_only_an_eye_can(self):
        answers = iter([b"y\n", b"n\n"])
        status, output = self.in_terminal(lambda _, terminal: os.write(terminal, next(answers)), "--operator", "speaker",
                                          "camera-flash")
        self.assertEqual(status, 1)
        verdicts = {test["name"]: test["verdict"] for test in self.records()[0]["tests"]}
        self.assertEqual((verdicts["camera-flash"], verdicts["speaker"]), ("passed", "failed"))

    def test_an_interrupted_run_ends_with_the_phone_switched_off(self):
        status, output = self.in_terminal(lambda pid, _: os.kill(pid, signal.SIGINT), "--operator")
        self.assertEqual(status, 130)
        record, = self.records()
        verdicts = {test["name"]: test["verdict"] for test in record["tests"]}
        self.assertTrue(record["interrupted"])
        self.assertEqual([verdicts[name] for name in ("battery", "online", "switch-off", "disconnect")],
                         ["not_run", "not_run", "passed", "passed"])

    def test_a_closed_pipe_ends_nothing(self):
        line = subprocess.Popen([LINE], cwd=self.folder.name, stdout=subprocess.PIPE)
        line.stdout.close()
        self.assertEqual(line.wait(), 0)
        self.assertEqual(self.records()[0]["verdict"], "passed")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
