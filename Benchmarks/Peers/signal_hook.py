#!/usr/bin/env python3
"""The hook that one would write without the helper: reads a payload, keeps what matters, drops a signal file.

    signal_hook.py SOURCE DATA_DIRECTORY < payload
"""

import hashlib
import json
import os
import sys
import time
import uuid
from pathlib import Path

KEPT = (
    "hook_event_name", "session_id", "cwd", "model", "transcript_path", "tool_name", "tool_use_id", "timestamp",
    "turn_id", "response_id", "message_id", "parent_session_id", "isSidechain", "agent_id",
)
PATHS = ("file_path", "path", "absolute_path")
OUTCOME = ("success", "error")
MAXIMUM_PENDING = 512


def configuration(data, name):
    try:
        content = json.loads((data / name).read_text())
    except (OSError, ValueError):
        return {}
    return content if isinstance(content, dict) else {}


def profile(source, settings):
    homes = settings.get("advanced", {}).get("agentHomes", {})
    home = os.path.realpath(os.path.expanduser(homes.get(source, f"~/.{source}")))
    identity = "\0".join(("source-profile-v1", source, "unknown", home))
    return {
        "sourceKind": "unknown",
        "agentHome": home,
        "sourceProfileID": hashlib.sha256(identity.encode()).hexdigest(),
    }


def filtered(payload, includes_responses):
    kept = {key: payload[key] for key in KEPT if key in payload}
    tool_input = payload.get("tool_input") or {}
    kept["tool_input"] = {key: tool_input[key] for key in PATHS if key in tool_input}
    response = payload.get("tool_response") or {}
    kept["tool_response"] = {key: response[key] for key in OUTCOME if key in response}
    if includes_responses and "last_assistant_message" in payload:
        kept["last_assistant_message"] = payload["last_assistant_message"]
    return kept


def write(signal, spool):
    spool.mkdir(mode=0o700, exist_ok=True)
    if sum(name.endswith(".json") for name in os.listdir(spool)) >= MAXIMUM_PENDING:
        return
    temporary = spool / f".tmp-{uuid.uuid4()}"
    with open(temporary, "x") as file:
        json.dump(signal, file)
    temporary.rename(spool / f"{time.time():.6f}-{uuid.uuid4()}.json")


def main():
    source, data = sys.argv[1], Path(sys.argv[2])
    payload = json.load(sys.stdin)
    settings = configuration(data, "settings.json")
    integrations = configuration(data, "integration-preferences.json")
    if source in settings.get("disabledConnectors", []) + integrations.get("disconnectedAgents", []):
        return
    policy = configuration(data, "capture-policy.json")
    content = filtered(payload, policy.get("includeAssistantResponses") is True)
    content["_vellarkProfile"] = profile(source, settings)
    content.setdefault("timestamp", time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime()))
    write({"version": 1, "source": source, "payload": content}, data / "signals")


if __name__ == "__main__":
    try:
        main()
    except Exception:
        pass  # the agent must not notice
    print("{}")
