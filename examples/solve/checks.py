"""Checks of the frame solver against closed forms. Prints one line for each; the exit status is 1
when one fails."""
import sys
import traceback

import check_frames
import check_members
import check_modes
import check_samples
import check_strains


def run(checks):
    """Run the checks one by one; the number that failed."""
    failed = 0
    for check in checks:
        try:
            check()
            print(f"ok    {check.__name__}: {' '.join(check.__doc__.split())}")
        except Exception as error:  # a crash of one check must not hide the others
            failed += 1
            print(f"FAIL  {check.__name__}: {error}")
            if not isinstance(error, AssertionError):
                traceback.print_exc(file=sys.stdout)
    return failed


if __name__ == "__main__":
    every = sum(
        (
            m.CHECKS
            for m in (check_members, check_strains, check_frames, check_modes, check_samples)
        ),
        (),
    )
    failures = run(every)
    print(f"{len(every)} checks, {failures} failed")
    sys.exit(1 if failures else 0)
