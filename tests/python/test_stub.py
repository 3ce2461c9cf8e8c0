"""The type hints name what there is, with the same parameters."""

import ast
import inspect
import pathlib
import re

import talvesk


def stub():
    path = pathlib.Path(talvesk.__file__).with_name("__init__.pyi")
    return ast.parse(path.read_text())


def parameters(function):
    arguments = function.args
    return {one.arg for one in arguments.args + arguments.kwonlyargs} - {"self"}


def documented(function):
    if inspect.isfunction(function):
        return set(inspect.signature(function).parameters)
    head = function.__doc__.split("\n")[0]
    return set(re.findall(r"(\w+): ", head[head.index("(") :])) - {"self"}


def test_stub_and_module_agree():
    names = {}
    for node in stub().body:
        if isinstance(node, (ast.FunctionDef, ast.ClassDef)):
            names[node.name] = node
    assert set(names) | {"__version__"} == set(talvesk.__all__)
    for name, node in names.items():
        if isinstance(node, ast.FunctionDef):
            assert parameters(node) == documented(getattr(talvesk, name)), name
            continue
        own = {key for key in vars(getattr(talvesk, name)) if not key.startswith("_")}
        said = {part.name for part in node.body if isinstance(part, ast.FunctionDef)}
        said |= {part.target.id for part in node.body if isinstance(part, ast.AnnAssign)}
        assert own == {key for key in said if not key.startswith("_")}, name
