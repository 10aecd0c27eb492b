// Words of Korean, English, Japanese and Chinese that mean several kinds, the likeliest kind first. A cue beside a
// generic noun names the kind itself, unless the noun's row holds a refinable kind of the cue's group, which then wins:
// so a row of generics lists a refinable kind only where it beats every cue of that group. Add an ambiguous word to the
// row that has its kinds, and take it out of the lists of single kinds.

#include <VellarkDomain/Documents/Kinds/Words/KindWords.hpp>

#include <array>

namespace vellark::KindWords {

namespace {

using enum DocumentKind;

template <DocumentKind... kinds>
constexpr std::array<DocumentKind, sizeof...(kinds)> anyOf{kinds...};

constexpr auto rows = std::to_array<Shared>({
    {.kinds = anyOf<report, research>,
     .names = "분석, 평가, 비교, 비교표, 인사이트, 검토 보고서, 分析, 評価, 评估, 評估, 比較, 对比, 對比, "
              "インサイト, analysis, analyses, assessment, evaluation, insight, deep dive, benchmark",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<report, codeReview, essay>,
     .names = "리뷰, 검토, 검토서, review, レビュー, 评审, 評審, 评论, 評論",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<prd, plan, design>,
     .names = "기획, 브리프, brief, 企画, 策划, 策劃, ブリーフ, コンセプト",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<story, script, userStories>,
     .names = "스토리, 시나리오, story, stories, ストーリー, シナリオ",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<exercises, quiz, bugReport>,
     .names = "문제, 문항, 問題, 题目, 題目, 試題, 试题, 设问, 設問",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<learning, lectureNotes>,
     .names = "강의 자료, 강좌, 온라인 강의, 교육 계획서, 학습 계획서, learning path, training plan, 수업 자료, "
              "강의 슬라이드, 유인물, lecture slide, lecture material, class material, handout, 講義資料, 授業資料, "
              "課件, 课件, 配布資料, 講義",
     .generics = "자료, materials, material, resources, resource, 資料, 资料, 素材",
     .cues = "과외, 부트캠프, 워크숍 자료, bootcamp, tutoring, 研修, 培训, 培訓"},
    {.kinds = anyOf<design, designDoc>,
     .names = "design, 设计, 도면, drawing, 図面, 图纸, 圖紙",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<notice, guide>,
     .names = "안내, 이용 안내, 案内, ご案内, 说明, 説明, 說明",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<plan, checklist, userStories>,
     .names = "백로그, 다음 단계, 액션 아이템, 시간표, 계획표, 타임라인, 캘린더, backlog, task, next step, "
              "action item, バックログ, タスク, 任务, 任務, 待办, 待辦",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<finance, report>,
     .names = "실적, 매출 전망, 예산 현황, 예산 집행 현황, 예산 계획, 지출 현황, 내역서, 연말 정산, 비용 분석, "
              "재무 보고서, 결산 보고서, 회계 보고서, financial report, financial analysis, earnings report, "
              "cost analysis, expense analysis, revenue report, 実績, 業績, 业绩, 決算報告, 财务报告, 財務報告",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<businessPlan, presentation, sales>,
     .names = "피치 덱, 피치, ir 자료, ir 덱, 투자 유치 자료, pitch deck, pitch, investor deck, "
              "investor presentation, ir deck, ピッチ資料, ピッチデック, 路演, 路演材料",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<studyNotes, quiz, learning>,
     .names = "공부, 복습, 예습, 시험 요약, 중간고사 요약, 기말고사 요약, 시험 노트, 勉強, 復習, 复习, 複習, "
              "플래시카드, 암기 카드, flashcard, フラッシュカード, 闪卡",
     .generics = "",
     .cues = "시험, 중간고사, 기말고사, 중간, 기말, 단원, 수학, 영어, 국어, 과학, 물리, 화학, 생물, 지구과학, "
             "한국사, 세계사, 역사, 사회, 경제학, 심리학, 통계학, 미적분, 선형대수, 문법, 영문법, 단어, 어휘, 한자, "
             "토익, 수능, 내신, 자격증, 챕터, chapter, unit, math, algebra, calculus, geometry, physics, chemistry, "
             "biology, history, geography, economics, psychology, grammar, vocabulary, anatomy, statistics, lesson, "
             "spanish, english, french, science, 試験, 期末, 期中, 中間, 数学, 數學, 英語, 英语, 物理, 化学, 化學, "
             "生物, 歴史, 世界史, 日本史, 历史, 歷史, 考试, 考試, 単元, 单元, 文法, 语法, 語法, 単語, 单词"},
    {.kinds = anyOf<studyNotes, guide>,
     .names = "",
     .generics = "",
     .cues = "midterm, exam, 알고리즘, 자료구조, 자료 구조, 운영체제, 운영 체제, 네트워크, 파이썬, 자바, 리액트, "
             "도커, 쿠버네티스, 스프링, 머신러닝, 딥러닝, 컴퓨터 구조, 디자인 패턴, algorithm, data structure, "
             "operating system, networking, python, java, javascript, typescript, rust, golang, kotlin, swift, "
             "react, docker, kubernetes, git, linux, sql, aws, machine learning, deep learning, アルゴリズム, "
             "データ構造, ネットワーク, 算法, 数据结构, 数據結構, 操作系统, 机器学习, 深度学习, 機械学習"},
    {.kinds = anyOf<memo, journal>,
     .names = "",
     .generics = "정리, 정리본, 요약, 요약본, 요약문, 요약 정리, 초고, 초벌, 의견, 노트, 기록, 기록지, 기록물, "
                 "결과, 내용, summary, summaries, "
                 "notes, note, recap, takeaways, takeaway, records, record, findings, variants, january, february, "
                 "march, april, may, june, july, august, september, october, november, december, results, result, "
                 "list, まとめ, ノート, "
                 "記録, 要約, 結果, 内容, 要点, 草稿, 素案, 月分, 月号, 初稿, 定稿, 修订稿, 第期, 第讲, 意见, 一月, "
                 "二月, 三月, 四月, 五月, 六月, 七月, 八月, 九月, 十月, 总结, 總結, 笔记, 筆記, 记录, 紀錄, 摘要, "
                 "小结, 结果, 纪要, 內容, "
                 "整理",
     .cues = ""},
    {.kinds = anyOf<journal, changelog>,
     .names = "일지, 작업 일지, 개발 일지, 운동 일지, 실험 일지, 연구 일지, 작업 로그, work log, dev log, devlog, "
              "logbook, 日誌, 日志",
     .generics = "로그, logs, log, ログ",
     .cues = ""},
    {.kinds = anyOf<meetingNotes, retrospective>,
     .names = "",
     .generics = "",
     .cues = "워크숍, 워크샵, 원온원, 데일리, 싱크, 타운홀, 정례 회의, 팀 미팅, 팀 회의, 임원 회의, 전체 회의, "
             "정기 회의, 이사회, 면접, workshop, town hall, all hands, check in, offsite, huddle, catch up, debrief, "
             "ワークショップ, 朝会, 定例, 研讨会, 研討會, 例会, 周会"},
    {.kinds = anyOf<blogPost, socialPost, essay>,
     .names = "포스트, 게시글, 스레드, thread, スレッド, 후기, 체험기, 사용기, 방문기, 기고, post, write up, "
              "writeup, 記事, 文章, 帖子, 体験記",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<data, checklist>,
     .names = "목록, 리스트, 현황표, 목록표, list, 一覧, 一覧表, リスト, 列表, 名单, 名單",
     .generics = "",
     .cues = ""},
    {.kinds = anyOf<guide, learning>,
     .names = "",
     .generics = "문서, 문서화, 서류, 개요, 소개, 입문, 기초, documents, document, documentation, doc, docs, "
                 "overview, introduction, intro, basics, fundamentals, 文書, ドキュメント, 概要, 紹介, 入門, 基礎, "
                 "文档, 文檔, 文件, 概述, 简介, 簡介, 介绍, 介紹, 入门, 基础",
     .cues = ""},
});

}  // namespace

std::span<const Shared> shared() {
    return rows;
}

}  // namespace vellark::KindWords
