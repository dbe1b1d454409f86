"""The door scripts through the Python module: attributes, calls and `set_` members."""
import dataclasses
import datetime
import os
import pathlib
import sys
import tempfile

import orve3_bs6399_2 as orve

DATES = ("Created", "Modified")
PATHS = ("Location", "PathToHelp", "PathToWindLoadCases", "breDataPath")


def text_of(value, member=""):
    if value is None:
        return "0" if member in DATES else ""
    if isinstance(value, bool):
        return str(value)
    if isinstance(value, datetime.datetime):
        return orve.double_text((value - datetime.datetime(1899, 12, 30)) / datetime.timedelta(days=1))
    if isinstance(value, int):
        return str(int(value))
    if isinstance(value, float):
        return orve.single_text(value)
    if isinstance(value, list):
        return "[" + ", ".join(text_of(row) for row in value) + "]"
    if dataclasses.is_dataclass(value):
        return "{" + "; ".join(text_of(getattr(value, f.name)) for f in dataclasses.fields(value)) + "}"
    if isinstance(value, orve.Object):
        return type(value).__name__
    return value.replace(os.sep, "\\") if member in PATHS else value


def literal(text):
    """A text of the script as a Python host would write the value."""
    if text in ("True", "False"):
        return text == "True"
    for kind in (int, float):
        try:
            return kind(text)
        except ValueError:
            pass
    return text


class ScriptRun:
    def __init__(self, folder):
        self.folder = folder
        self.events = []
        orve.host.LibraryFolder = orve.host.SystemDirectory = lambda: folder
        for service in ("MsgBox", "Now", "OpenFileDialog", "SaveFileDialog", "SiteBrowse", "SiteSelect"):
            self.set_service(service, "")
        orve.host.SiteEdit = None
        orve.register_built_in_engines()
        self.root = orve.clsCurrentCase()
        names = ("DirtyUpdated", "LocationUpdated", "WindCaseListUpdated", "WindCaseOpened", "WindCaseSaved")
        self.connections = [getattr(self.root, name).connect(self.logger(name)) for name in names]

    def logger(self, name):
        return lambda *arguments: self.events.append(f"{name}({''.join(text_of(a, 'Location') for a in arguments)})")

    def portable(self, text):
        stored = self.folder.replace(os.sep, "\\")
        return text.replace(stored, "$FOLDER").replace(stored.upper(), "$UPPER")

    def set_service(self, service, answer):
        def choose(dialog):
            dialog.FileName = answer
            return bool(answer)

        orve.host.__setattr__(
            service,
            {
                "MsgBox": lambda prompt, buttons, title: int(answer or 7),
                "Now": lambda: float(answer or 46000.5),
                "OpenFileDialog": choose,
                "SaveFileDialog": choose,
                "SiteBrowse": lambda: answer or None,
                "SiteSelect": lambda: answer or None,
                "SiteEdit": lambda: bool(answer),
            }[service],
        )

    def object(self, name):
        if name == "clsCurrentCase":
            return self.root
        return getattr(self.root, "CantileverWindloads" if name == "clsCantileverWindLoads" else name[3:])

    def argument(self, member, text):
        if text.startswith("cls"):
            return self.object(text)
        if member in ("Description", "GridReference"):
            return text
        return literal(text.replace("$FOLDER", self.folder))

    def record(self, kind, texts):
        values = []
        for field in dataclasses.fields(kind):
            inner = dataclasses.is_dataclass(field.type)
            values.append(self.record(field.type, texts) if inner else texts[field.name == "Zone_Dimensions"])
        return kind(*values)

    def call(self, verb, class_name, member, texts):
        target = self.object(class_name)
        if member == "ExternalPressures" and verb == "let":
            target.ExternalPressures = self.record(orve.ExternalPressure, texts)
            return None
        arguments = [None if text == "-" else self.argument(member, text) for text in texts]
        if verb == "let":
            if len(arguments) > 1:
                return getattr(target, "set_" + member)(*arguments)
            return setattr(target, member, arguments[0])
        found = getattr(target, member)
        return found(*arguments) if callable(found) else found

    def run(self, verb, *fields):
        if verb == "events":
            events, self.events = self.events, []
            return self.portable(" ".join(events))
        if verb == "host":
            self.set_service(fields[0], fields[1].replace("$FOLDER", self.folder))
            return ""
        texts = [text.strip() for text in fields[2].split(";")] if fields[2] or verb == "let" else []
        try:
            result = text_of(self.call(verb, fields[0], fields[1], texts), fields[1])
            # The list holds upper case; Python gives the file's own name.
            if fields[:2] == ("clsWindCaseList", "Location"):
                result = result.upper()
            return self.portable(result)
        except orve.Error as error:
            return self.portable(f"! {error.number} {error}")


def run_script(path, record):
    failed = 0
    lines = []
    with tempfile.TemporaryDirectory(prefix="orve-") as folder:
        run = ScriptRun(folder)
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            lines.append(line)
            if not line or line.startswith("#"):
                continue
            fields = [field.strip() for field in line.split("|")] + [""] * 4
            result = run.run(*fields[:4])
            place = 1 if fields[0] == "events" else 4
            if result != fields[place]:
                failed += 1
                print(f"{path.name}:{number}: {result!r} instead of {fields[place]!r}")
                lines[-1] = " | ".join([*fields[:place], result])
    if record:
        path.write_text("\n".join(lines) + "\n", encoding="utf-8")
    return failed


if __name__ == "__main__":
    scripts = sorted(pathlib.Path(sys.argv[1]).iterdir())
    failures = sum(run_script(script, "--record" in sys.argv) for script in scripts)
    print(f"{len(scripts)} scripts, {failures} lines failed")
    sys.exit(1 if failures or not scripts else 0)
