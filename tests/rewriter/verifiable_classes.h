// Classes that a verifier takes, each the same for the same choices: one method of up to 60,000 bytes with every kind
// of type among its locals and on its stack, and branches that just reach where they lead, before the rewriter's
// injections or after them. A few bytes make such a method, so that a fuzzer can play with them.
#ifndef VANTREL_VERIFIABLE_CLASSES_H
#define VANTREL_VERIFIABLE_CLASSES_H

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "class_builder.h"

namespace verifiable_classes {

// The class's superclass is java.lang.Object. It is not made to be run.
class_builder::ClassFile from_choices(std::span<const std::uint8_t> choice_bytes, const std::string& name);

// Some hundred choices.
std::vector<std::uint8_t> random_choices(std::uint64_t seed);

}  // namespace verifiable_classes

#endif
