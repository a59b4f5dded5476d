# What the API reference leaves out: functions that override Qt's, which Qt documents, and copying, which does what it
# says.
/\b(event|eventFilter|[a-z][A-Za-z]*Event|sizeHint|minimumSizeHint|focusNextPrevChild|scrollContentsBy|initStyleOption)\(.*\boverride;/s/.*//
/\boperator=\(.*;$/s/.*//
/^ *([A-Z][A-Za-z]*)\(\1 (const ?)?&.*;$/s/.*//
/^ *friend /s/.*//
# A template that is declared before it is defined: doxygen takes the two for different ones.
s/^VTypedValueBase<T> const\* typedValue\(VValueBase const\* value\);$/class VTypedValueBase;/
