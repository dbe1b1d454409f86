"""Where a Python program keeps settings and finds the data of the components."""
import os
import pathlib


def settings_folder():
    """Folder of the settings file: the user's own, since the running program is Python itself.

    Without one that can be written, settings aren't kept.
    """
    base = os.environ.get("XDG_CONFIG_HOME") or os.path.join(os.path.expanduser("~"), ".config")
    folder = os.path.join(base, "orve")
    try:
        os.makedirs(folder, exist_ok=True)
    except OSError:
        pass
    return folder


def system_directory():
    """The installed share/orve, in the package or above it."""
    for parent in pathlib.Path(__file__).resolve().parents:
        if (parent / "share" / "orve").is_dir():
            return str(parent / "share" / "orve")
    return ""
