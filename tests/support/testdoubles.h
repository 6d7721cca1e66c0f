#pragma once

#include "settings.h"
#include "shell.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

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

/// A shell that records what it was asked to open or start.
class FakeShell : public Shell {
public:
    std::vector<std::string> opened;
    std::vector<std::pair<std::string, std::vector<std::string>>> started;
    bool succeed = true;

    bool openDocument(const std::string& path) override {
        opened.push_back(path);
        return succeed;
    }
    bool startProgram(const std::string& program,
                      const std::vector<std::string>& arguments) override {
        started.emplace_back(program, arguments);
        return succeed;
    }
};

} // namespace orvelin::testing
