"""Runs the checks of the frame solver that made the results of the example models: closed forms,
equilibrium, and the documents against what their generators write."""
import os
import subprocess
import sys

root = os.environ.get("VYN_SOURCE_DIR", os.getcwd())
checks = os.path.join(root, "examples", "solve", "checks.py")
sys.exit(subprocess.run([sys.executable, "-B", checks], check=False).returncode)
