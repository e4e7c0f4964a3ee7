// Checks a VIF, in C++98 without exceptions: check FILE
#include <vif.h>

#include <cstdio>

/// Owns findings.
class Findings {
 public:
  Findings() : m_findings(NULL) {}
  ~Findings() { vif_findings_free(m_findings); }

  vif_findings** Receive() { return &m_findings; }
  size_t Count() const { return vif_findings_count(m_findings); }

  vif_finding At(size_t position) const {
    vif_finding finding;
    finding.size = sizeof(finding);
    vif_findings_get(m_findings, position, &finding);
    return finding;
  }

 private:
  Findings(const Findings&);
  Findings& operator=(const Findings&);

  vif_findings* m_findings;
};

static const char* SeverityOf(const vif_finding& finding) {
  if (finding.severity == VIF_SEVERITY_ERROR) return "error";
  return finding.severity == VIF_SEVERITY_WARNING ? "warning" : "note";
}

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: check FILE\n", stderr);
    return 2;
  }
  Findings findings;
  vif_error* error = NULL;
  if (vif_check_file(argv[1], NULL, NULL, findings.Receive(), &error) != VIF_OK) {
    std::fprintf(stderr, "check: %s: %s\n", argv[1], vif_error_message(error));
    vif_error_free(error);
    return 2;
  }
  for (size_t i = 0; i < findings.Count(); ++i) {
    const vif_finding finding = findings.At(i);
    std::printf("line %lu: %s: %s [%s]%s\n", static_cast<unsigned long>(finding.line), SeverityOf(finding),
                finding.message, finding.code, finding.position == VIF_NO_POSITION ? " (no field)" : "");
  }
  return findings.Count() == 0 ? 0 : 1;
}
