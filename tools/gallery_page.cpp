#include "tools/gallery_page.h"

#include "inspect/display_width.h"
#include "inspect/members.h"
#include "inspect/picture.h"
#include "inspect/xml_writer.h"
#include "tools/text_output.h"

namespace kavrix::tools {
namespace {

using inspect::CutText;
using inspect::XmlWriter;

constexpr std::size_t kNameColumns = 4000;
constexpr std::size_t kValueColumns = 300;
constexpr std::size_t kMostProblems = 20;
constexpr std::size_t kMostMembers = 100;

constexpr char kPolicy[] =
    R"(<meta http-equiv="Content-Security-Policy" content="default-src 'none'; style-src 'unsafe-inline'"/>)";

constexpr char kStyle[] = R"(
:root { color-scheme: light dark; --page: #ffffff; --box: #f4f6f8; --text: #17202a; --muted: #53616f;
        --line: #ccd4dc; --link: #0b57b7; --error: #b42318; --warning: #8a5300; }
@media (prefers-color-scheme: dark) {
  :root { --page: #11161c; --box: #1a222b; --text: #eef2f6; --muted: #a9b6c3;
          --line: #37434f; --link: #8ab8ff; --error: #ff9d92; --warning: #f0b860; }
}
* { box-sizing: border-box; }
body { margin: 0 auto; max-width: 64rem; padding: 1rem; background: var(--page); color: var(--text);
       line-height: 1.5; }
a { color: var(--link); }
nav ul { display: flex; flex-wrap: wrap; gap: 0.25rem 1rem; margin: 0; padding: 0; list-style: none; }
article { margin: 0 0 1.5rem; padding: 1rem; border: 1px solid var(--line); border-radius: 0.5rem; background: var(--box); }
code { font-family: ui-monospace, "DejaVu Sans Mono", "WenQuanYi Micro Hei Mono", monospace; font-size: 0.85rem;
       overflow-wrap: anywhere; unicode-bidi: isolate; }
h3 { margin: 0 0 0.75rem; font-size: 1rem; font-weight: normal; }
.pictures { display: flex; flex-wrap: wrap; gap: 1rem; overflow-x: auto; }
figure { margin: 0; }
figcaption, .muted { color: var(--muted); font-size: 0.85rem; }
svg { display: block; }
.problems { margin: 0.75rem 0 0; padding-left: 1.25rem; overflow-wrap: anywhere; }
.error { color: var(--error); }
.warning { color: var(--warning); }
details { margin-top: 0.75rem; }
table { border-collapse: collapse; margin-top: 0.5rem; max-width: 100%; }
th, td { padding: 0.15rem 0.75rem 0.15rem 0; text-align: left; vertical-align: top; font-weight: normal; }
)";

void AddProblems(XmlWriter& html, const std::vector<inspect::Problem>& problems) {
  if (problems.empty()) return;
  html.Begin("ul").With("class", "problems");
  for (std::size_t i = 0; i < problems.size() && i < kMostProblems; ++i) {
    const inspect::Problem& problem = problems[i];
    const char* const severity = inspect::SeverityName(problem.severity);
    html.Begin("li").Begin("strong").With("class", severity).Text(severity).End();
    html.Text(": " + CutText(problem.message, kValueColumns) + ' ');
    html.Element("code", '[' + problem.code + ']');
    if (problem.suggestion) {
      html.Text(" Did you mean ").Element("code", CutText(*problem.suggestion, kValueColumns)).Text("?");
    }
    html.End();
  }
  if (problems.size() > kMostProblems) {
    html.Element("li", '+' + std::to_string(problems.size() - kMostProblems) + " more");
  }
  html.End();
}

void AddMembers(XmlWriter& html, const BubbleDrawDescriptor& descriptor) {
  std::vector<FlatMember> shown;
  std::size_t defaults = 0;
  for (FlatMember& member : inspect::Members(descriptor)) {
    if (inspect::SaysSomething(member)) {
      shown.push_back(std::move(member));
    } else {
      ++defaults;
    }
  }
  html.Begin("details").Begin("summary").Element("code", descriptor.TypeName());
  html.Text(": " + std::to_string(shown.size()) + " values, " + std::to_string(defaults) +
            " members at their defaults");
  html.End();
  html.Begin("table").Begin("tbody");
  for (std::size_t i = 0; i < shown.size() && i < kMostMembers; ++i) {
    html.Begin("tr").Begin("th").With("scope", "row").Element("code", shown[i].path).End();
    html.Begin("td").Element("code", CutText(ShownValue(shown[i]), kValueColumns)).End().End();
  }
  if (shown.size() > kMostMembers) {
    html.Begin("tr").Begin("td").With("colspan", 2);
    html.Text('+' + std::to_string(shown.size() - kMostMembers) + " more").End().End();
  }
  html.End().End().End();
}

std::string TitleOf(const GalleryGroup& group) {
  if (group.kind.empty()) return "No kind";
  return group.kind == kMarkerNameInfo.Name() ? "Marker names" : group.kind;
}

std::string IdOf(const GalleryGroup& group) { return "kind-" + (group.kind.empty() ? "none" : group.kind); }

std::string Counted(std::size_t names, std::size_t failed) {
  const std::string text = std::to_string(names) + (names == 1 ? " name" : " names");
  return failed == 0 ? text : text + ", " + std::to_string(failed) + " failed";
}

std::string MoreNames(std::size_t left_out) {
  return left_out == 1 ? "1 more name is left out." : std::to_string(left_out) + " more names are left out.";
}

void AddHead(XmlWriter& html, const std::string& title) {
  html.Begin("head").Begin("meta").With("charset", "utf-8").EndEmpty();
  html.Markup(kPolicy);
  html.Begin("meta")
      .With("name", "viewport")
      .With("content", "width=device-width, initial-scale=1")
      .EndEmpty();
  html.Element("title", title).Begin("style").Markup(kStyle);
  html.Markup(std::string("body { font-family: ") + inspect::PictureFonts() + "; }\n").End().End();
}

void AddIndex(XmlWriter& html, const std::vector<GalleryGroup>& groups) {
  html.Begin("nav").With("aria-label", "Kinds").Begin("ul");
  for (const GalleryGroup& group : groups) {
    if (group.names.empty()) continue;
    html.Begin("li").Begin("a").With("href", '#' + IdOf(group)).Text(TitleOf(group)).End().Text(" ");
    html.Begin("span").With("class", "muted").Text(Counted(group.names.size(), group.failed)).End().End();
  }
  html.End().End();
}

void AddGroup(XmlWriter& html, const GalleryGroup& group) {
  html.Begin("section").With("id", IdOf(group)).Markup("\n").Element("h2", TitleOf(group));
  for (const std::string& name : group.names) html.Markup("\n").Markup(name);
  html.End().Markup("\n");
}

}  // namespace

std::string ToHtml(const GalleryName& name) {
  XmlWriter html;
  html.Begin("article").Begin("h3");
  if (name.decoded.name.empty()) {
    html.Begin("span").With("class", "muted").Text("(empty name)").End();
  } else {
    html.Element("code", CutText(name.decoded.name, kNameColumns));
  }
  html.End();
  html.Begin("div").With("class", "pictures");
  for (const GalleryPicture& picture : name.pictures) {
    html.Begin("figure").Markup(picture.svg).Element("figcaption", picture.caption).End();
  }
  html.End();
  AddProblems(html, name.problems);
  if (name.decoded.exception) {
    html.Begin("p")
        .With("class", "error")
        .Text("exception: " + CutText(*name.decoded.exception, kValueColumns))
        .End();
  }
  if (name.decoded.descriptor != nullptr) AddMembers(html, *name.decoded.descriptor);
  return html.End().Take();
}

std::string ToPage(const std::string& title, const std::vector<GalleryGroup>& groups, std::size_t left_out) {
  std::size_t names = 0;
  std::size_t failed = 0;
  for (const GalleryGroup& group : groups) {
    names += group.names.size();
    failed += group.failed;
  }
  XmlWriter html;
  html.Markup("<!DOCTYPE html>\n")
      .Begin("html")
      .With("xmlns", "http://www.w3.org/1999/xhtml")
      .With("lang", "en");
  html.With("xml:lang", "en");
  AddHead(html, title);
  html.Markup("\n").Begin("body").Begin("header").Element("h1", title);
  html.Element("p", Counted(names, failed) +
                        ", by kind. The pictures are schematic: they show what a descriptor says, not how a "
                        "client draws it.");
  if (left_out != 0) {
    html.Begin("p").With("class", "error").Text(MoreNames(left_out)).End();
  }
  AddIndex(html, groups);
  html.End().Markup("\n").Begin("main");
  for (const GalleryGroup& group : groups) {
    if (!group.names.empty()) AddGroup(html, group);
  }
  return html.End().End().End().Markup("\n").Take();
}

}  // namespace kavrix::tools
