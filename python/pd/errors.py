"""Statuses as exceptions, a class for each below StatusError.

Each has the attributes status (the number), name (the constant of C) and text (one sentence).
"""
from pd import _core

StatusError = _core.StatusError
globals().update({name: value for name, value in vars(_core).items()
                  if isinstance(value, type) and issubclass(value, StatusError)})
