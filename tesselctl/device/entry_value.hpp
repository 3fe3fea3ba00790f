// Value strings of entries and actions, as the library writes them and images hold them:
//
//   ((( 0x01,0x0a000000,0x0008,),('NAME',(0x000c,)),),(0,True))
//   (((),('setMbrHdl',(0x1,))),(0,True))
#pragma once

#include "tesselctl/device/read_back.hpp"
#include "tesselctl/program/value_scanner.hpp"

namespace tesselctl {

// An action with its parameters, "('NAME',(0x0001,)),", as the value of an item. action is the one
// that was read before, of which there are often many, and becomes the one that was read. The word
// that names it.
Word parse_action(ValueScanner &line, const bindings::Record *&action, std::string &value);
void print_action(std::string &text, std::string_view value);

// An entry without its resources; a default entry has no identity. Members and groups by the number
// that stands there. The word that names the action, if any.
Word parse_entry(ValueScanner &line, const TableInfo &table, const bindings::Record *&action,
                 ItemBytes &item);
// With all bits of the key; the library leaves out those that take no part in the lookup, which
// entries keep all the same.
void print_entry(std::string &text, const TableInfo &table, const ItemView &item);

}  // namespace tesselctl
