#include "tools/SamplePeople.h"

namespace quorvel::tools {
namespace {

constexpr std::string_view kOperators[] = {"HEADOFFICE\\m.keller", "HEADOFFICE\\a.rossi", "HEADOFFICE\\c.lefèvre",
                                           "NIGHTDESK\\j.doorn", "NIGHTDESK\\p.wójcik"};

constexpr std::string_view kFirstNames[] = {"Zoë",   "Marek", "Aurélie", "Jürgen", "Łucja", "Iñaki",  "Siân",
                                            "Paolo", "Greta", "Thomas",  "Núria",  "Björn", "Claire", "Ewa",
                                            "Luís",  "Hanna", "Ömer",    "Fiona",  "Jan",   "Chloé"};
constexpr std::string_view kLastNames[] = {
    "Lindqvist", "Wójcik",   "Lefèvre", "Müller", "Zielińska", "Etxeberria", "Morgan", "Rossi",   "Weiß",   "van Doorn",
    "Ferrer",    "Sørensen", "O'Brien", "Nowak",  "Sánchez",   "Schröder",   "Yılmaz", "MacLeod", "Dupont", "Keller"};

}  // namespace

std::span<const std::string_view> Operators() {
  return kOperators;
}

std::string AnyPerson(SampleRandom& random) {
  const std::string_view first = AnyOf(kFirstNames, random);
  return std::string(first).append(" ").append(AnyOf(kLastNames, random));
}

}  // namespace quorvel::tools
