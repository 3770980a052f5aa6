# SPDX-License-Identifier: Apache-2.0
"""The rooms of tools/layers.json, and the arrows between them."""

import os


def room_of(folder, rooms):
    """The deepest folder among the rooms that is this one or lies above it; None where none is."""
    while folder:
        if folder in rooms:
            return folder
        folder = os.path.dirname(folder)
    return None


def covers(pattern, room):
    """Whether an entry of a room's list allows that room."""
    if pattern.endswith("*"):
        return room.startswith(pattern[:-1])
    return pattern == room


def edges_of(rooms):
    """Room to the rooms it may include, without those that may include everything."""
    return {
        room: [other for other in rooms if other != room and any(covers(p, other) for p in allowed)]
        for room, allowed in rooms.items()
        if "*" not in allowed
    }


def circle(rooms):
    """Rooms whose edges lead back to the first of them; empty where there is no circle."""
    edges, finished = edges_of(rooms), set()

    def walk(room, way):
        if room in way:
            return way[way.index(room):] + [room]
        if room in finished or room not in edges:
            return []
        for further in edges[room]:
            found = walk(further, way + [room])
            if found:
                return found
        finished.add(room)
        return []

    return next((found for found in (walk(room, []) for room in edges) if found), [])
