#include "candidates.h"

#include <span>

namespace crw {

int8_t largest_growth(const Site& site, const uint8_t* code) {
    if (is_switch(site)) {
        return kLargestPaddingChange;
    }
    return site.kind == Site::kBranch ? growth_of(code[site.pc]) : int8_t{0};
}

std::vector<Candidate> find_candidates(MethodRewriteState& mi, const uint8_t* code) {
    const std::span<const Site> sites = mi.sites;
    // By site, by how much all before it can grow, and how many candidates there are before it.
    std::vector<int32_t> growth_before(sites.size() + 1, 0);
    std::vector<uint32_t> candidates_before(sites.size() + 1, 0);
    // By pc, how many sites end there or before.
    std::vector<uint32_t> sites_up_to(static_cast<size_t>(mi.code_len) + 1);
    size_t pc = 0;
    for (size_t i = 0; i < sites.size(); ++i) {
        growth_before[i + 1] = growth_before[i] + largest_growth(sites[i], code);
        for (; pc < sites[i].pc_next; ++pc) {
            sites_up_to[pc] = static_cast<uint32_t>(i);
        }
    }
    std::fill(sites_up_to.begin() + static_cast<ptrdiff_t>(pc), sites_up_to.end(), static_cast<uint32_t>(sites.size()));
    std::vector<Candidate> candidates;
    candidates.reserve(sites.size());
    for (size_t i = 0; i < sites.size(); ++i) {
        candidates_before[i] = static_cast<uint32_t>(candidates.size());
        Site& site = mi.sites[i];
        const int32_t new_pc = mi.map[site.pc];
        const int32_t grown_pc = new_pc + growth_before[i];
        if (is_switch(site)) {
            candidates.push_back({&site, new_pc, 0, grown_pc, 0, 0});
        } else if (site.kind == Site::kBranch) {
            const uint32_t target = target_of(site, offset_of(site, code));
            const int32_t offset = mi.map[target] - new_pc;
            const uint32_t before = sites_up_to[target];
            const int32_t grown_offset = offset + growth_before[before] - growth_before[i];
            // One that lies far away without growing may come nearer: a switch's padding may shrink.
            if (!fits(grown_offset) || !fits(offset)) {
                candidates.push_back({&site, new_pc, offset, grown_pc, before, growth_of(code[site.pc])});
            }
        }
    }
    candidates_before.back() = static_cast<uint32_t>(candidates.size());
    for (Candidate& candidate : candidates) {
        candidate.before = candidates_before[candidate.before];
    }
    return candidates;
}

}  // namespace crw
