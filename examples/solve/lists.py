"""Lists of numbers as a person types them: "all", "none", "1 3 5 to 9", "2 to 20 step 6"."""


def expand(text, existing):
    """The numbers of `existing` that the list names, ascending."""
    words = text.replace(",", " ").lower().split()
    if words == ["all"]:
        return sorted(existing)
    if words == ["none"]:
        return []
    chosen = set()
    while words:
        first = last = int(words.pop(0))
        step = 1
        if words[:1] == ["to"]:
            last = int(words[1])
            words = words[2:]
        if words[:1] == ["step"]:
            step = int(words[1])
            words = words[2:]
        chosen.update(range(first, last + 1, step))
    missing = sorted(chosen - set(existing)) if len(chosen) < 1000 else []
    if missing:
        raise ValueError(f"list {text!r} names {missing}, which do not exist")
    return sorted(chosen & set(existing))
