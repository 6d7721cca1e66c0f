#pragma once

#include "settings.h"

#include <map>
#include <string>
#include <utility>

namespace orvelin::testing {

/// Settings held in memory: a fresh store for every test.
class MemorySettingsBackend : public SettingsBackend {
public:
    std::string get(const std::string& section, const std::string& key,
                    const std::string& defaultValue) const override {
        const auto it = m_values.find({normalizeSection(section), key});
        return it == m_values.end() ? defaultValue : it->second;
    }
    void set(const std::string& section, const std::string& key,
             const std::string& value) override {
        m_values[{normalizeSection(section), key}] = value;
    }

private:
    std::map<std::pair<std::string, std::string>, std::string> m_values;
};

} // namespace orvelin::testing
