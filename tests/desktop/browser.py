"""A headless browser that prints pages, told what to do through its own debugging pipe."""
import base64
import json
import os
import pathlib
import subprocess
import tempfile

MM_PER_INCH = 25.4


class Browser:
    def __enter__(self):
        self.profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        commands_out, self.commands = os.pipe()
        self.answers, answers_in = os.pipe()
        # Such a browser reads its commands from 3 and answers on 4.
        self.process = subprocess.Popen(
            ["sh", "-c", f'exec "$@" 3<&{commands_out} 4>&{answers_in}', "sh", "chromium", "--headless",
             "--no-sandbox", "--disable-gpu", "--no-first-run", "--disable-extensions", "--disable-dev-shm-usage",
             f"--user-data-dir={self.profile.name}", "--remote-debugging-pipe"],
            pass_fds=(commands_out, answers_in), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(commands_out)
        os.close(answers_in)
        self.waiting = b""
        self.last = 0
        self.complaints = []
        target = self.ask("Target.createTarget", url="about:blank")["targetId"]
        self.session = self.ask("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        for domain in ("Page", "Log", "Runtime"):
            self.ask(f"{domain}.enable")
        return self

    def __exit__(self, *unused):
        os.close(self.commands)
        os.close(self.answers)
        self.process.terminate()
        self.process.wait(20)
        self.profile.cleanup()

    def message(self):
        while b"\0" not in self.waiting:
            block = os.read(self.answers, 1 << 20)
            if not block:
                raise ConnectionError("the browser has ended")
            self.waiting += block
        message, self.waiting = self.waiting.split(b"\0", 1)
        return json.loads(message)

    def note(self, message):
        name = message.get("method")
        if name == "Log.entryAdded" and message["params"]["entry"]["level"] in ("error", "warning"):
            self.complaints.append(message["params"]["entry"]["text"])
        elif name in ("Runtime.exceptionThrown", "Runtime.consoleAPICalled"):
            self.complaints.append(json.dumps(message["params"]))

    def ask(self, method, **parameters):
        self.last += 1
        command = {"id": self.last, "method": method, "params": parameters}
        if hasattr(self, "session"):
            command["sessionId"] = self.session
        os.write(self.commands, json.dumps(command).encode() + b"\0")
        while True:
            message = self.message()
            if message.get("id") == self.last:
                if "error" in message:
                    raise RuntimeError(f"{method}: {message['error']}")
                return message["result"]
            self.note(message)

    def wait_for(self, event):
        while (message := self.message()).get("method") != event:
            self.note(message)

    def open(self, page):
        """Shows the file; what the browser complains of on the way is in `complaints`."""
        self.complaints = []
        self.ask("Page.navigate", url=pathlib.Path(page).as_uri())
        self.wait_for("Page.loadEventFired")

    def ask_page(self, expression):
        return self.ask("Runtime.evaluate", expression=expression, returnByValue=True)["result"]["value"]

    def print(self, width, height, pdf):
        """Prints the page that is open on sheets of so many millimetres, as its style sheet asks, without
        backgrounds but those that the page insists on."""
        result = self.ask("Page.printToPDF", paperWidth=width / MM_PER_INCH, paperHeight=height / MM_PER_INCH,
                          landscape=width > height, printBackground=False, preferCSSPageSize=False,
                          marginTop=0.4, marginBottom=0.4, marginLeft=0.4, marginRight=0.4)
        pathlib.Path(pdf).write_bytes(base64.b64decode(result["data"]))
